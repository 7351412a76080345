// SPDX-License-Identifier: MIT

// Base of the tests that drive the real program: a screen for the whole test, a fresh directory for each test function.
#pragma once

#include "host_session.h"
#include "screen.h"
#include "user.h"

#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

class E2E_TEST : public QObject
{
    Q_OBJECT

public:
    E2E_TEST();
    ~E2E_TEST() override;

protected:
    // The screen that the test needs: by default one with room for everything.
    virtual QSize screen_size() const { return {1600, 1200}; }

    // Starts the program again on the same directory; the former run must have ended.
    bool start(const QStringList& options);
    bool start_with_database(const QString& database_directory, const QStringList& options);
    // The same with the probe of the host's libraries (tests/unit/host/host_probe.cpp).
    bool start_probe(const QStringList& options);
    HOST_SESSION& session() { return *m_session; }
    USER& user() { return *m_user; }

    // What the program shows now, and waiting until it shows that.
    QJsonObject look(const QJsonObject& question) { return m_session->ask(question); }
    // A widget's property ("text", "checked", "currentText"...) gets that value.
    bool wait_for_property(const char* widget, const char* property, const QJsonValue& value);
    // The texts of the first column of a view or combo box; waiting until they are `texts`.
    QStringList column_of(const char* view);
    bool wait_for_column(const char* view, const QStringList& texts);
    // A window of that title is the active one.
    bool wait_for_window(const QString& title);

    // A message box with that text is the active window.
    bool wait_for_box(const QString& text);
    bool wait_for_box_that_opens_with(const QString& text);

    // What a second program finds in the database for (family, scheme): support/database_reader.cpp.
    QJsonObject read_database(int family, int scheme, const QStringList& names) const;

    // The program has ended with the exit code 0 and logged nothing.
    bool ended_well();

    QString scratch() const { return m_scratch->path(); }
    const SCREEN& screen() const { return m_screen; }

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    void create_session();
    bool wait_for_box_text(const std::function<bool(const QString& text)>& is_right);

    SCREEN m_screen;
    std::unique_ptr<QTemporaryDir> m_scratch;
    std::unique_ptr<HOST_SESSION> m_session;
    std::unique_ptr<USER> m_user;
};
