// SPDX-License-Identifier: MIT

// Base of the tests of the programmer's window: a window on a database directory and settings of the function's own.
#pragma once

#include "dialog/module_loader.h"
#include "modal_driver.h"
#include "programmer/programmer_window.h"
#include "test_rows.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

inline QString qs(const char* text)
{
    return QString::fromUtf8(text);
}

class PROGRAMMER_TEST : public QObject
{
    Q_OBJECT

protected:
    // 1 MiB, and 32 MiB.
    static constexpr const char* SMALL_DEVICE = "MX25R8035F";
    static constexpr const char* LARGE_DEVICE = "MX25L25645G";

    // Opens the window, with the settings of the former one.
    void open(const char* device = SMALL_DEVICE, int scheme = PGMIO_ACTIVE_SERIAL,
              const DIALOG_OPTIONS& options = DIALOG_OPTIONS());
    PROGRAMMER_WINDOW& window() { return *m_window; }
    void close_window() { m_window.reset(); }

    template <typename WIDGET>
    WIDGET& child(const char* name)
    {
        auto* found = m_window->findChild<WIDGET*>(QLatin1String(name));
        if (!found)
            qFatal("the window has no %s", name);
        return *found;
    }
    void click(const char* button) { child<QAbstractButton>(button).click(); }
    // Checks these operations and no others: letters of "ebpvx".
    void check(const QString& operations);
    void enter(const char* field, const QString& text) { child<QLineEdit>(field).setText(text); }
    // The file is entered, and its size and check sum are known.
    void enter_file(const QString& file);
    // Presses Start and waits for the verdict.
    QString run();
    // Waits until nothing is under way.
    QString wait_for_verdict();
    QString verdict() { return child<QLabel>("m_verdict_label").text(); }
    QString log() { return child<QPlainTextEdit>("m_log").toPlainText(); }

    // A file in the function's directory; its name.
    QString make_file(const char* name, const QByteArray& content);
    static QByteArray content(int size);
    QString scratch(const char* name) const { return m_scratch->filePath(QLatin1String(name)); }
    QSettings& settings() { return *m_settings; }

    MODAL_DRIVER m_modals;

private slots:
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_scratch;
    std::unique_ptr<QSettings> m_settings;
    MODULE_LOADER m_module{{QStringLiteral("/no/module")}};
    std::unique_ptr<PROGRAMMER_WINDOW> m_window;
};
