// SPDX-License-Identifier: MIT

// Pictures of the dialog's pages, taken from the real dialog while it is open.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class QDialog;
class QTabWidget;
class QWidget;

// While one lives, it takes charge of every window that the application opens: it draws each page of the dialog's tab
// widget into a PNG file, which is as large as the chart on it needs, opens the template editor and draws that, and
// closes them again, so that the call that opened the dialog returns. For a platform without a display. Any other
// window is closed and counts as a problem.
class PAGE_RENDERER : public QObject
{
    Q_OBJECT

public:
    // The pictures go into `directory`, which is created.
    explicit PAGE_RENDERER(const QString& directory);
    ~PAGE_RENDERER() override;

    // The files written, as absolute paths, in the order of the pages.
    const QStringList& files() const { return m_files; }
    // What went wrong, one sentence a line; empty when nothing did.
    QString problem() const { return m_problems.join(QLatin1Char('\n')); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void meet(QDialog* dialog);
    void render_pages(QDialog* dialog, QTabWidget* pages);
    void open_template_editor(const QDialog* dialog);
    void render(QWidget* window, const QString& name);

    const QString m_directory;
    QStringList m_files;
    QStringList m_problems;
};
