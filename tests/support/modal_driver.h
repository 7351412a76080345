// SPDX-License-Identifier: MIT

// Meets the modal boxes, dialogs and menus that the code under test opens.
//
// A modal window runs an event loop of its own, so the test says beforehand what is to be done with the next one:
//
//     m_modals.expect(MODAL_DRIVER::accept());
//     QTest::keyClick(edit, Qt::Key_Return);
//     QCOMPARE(m_modals.last().text, QStringLiteral("..."));
//
// A modal window that no one expected is closed and noted, one that was expected and never came is noted too, and so is
// one that is still open after its action: problem() then is not empty, and the test fails (GUI_TEST sees to it).
#pragma once

#include <QDialog>
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>

#include <deque>
#include <functional>

// What a modal window looked like when it was met. Box members are empty for other windows.
struct MET_MODAL
{
    QString class_name;
    QString title;
    QString text;
    QString informative_text;
    QString detailed_text;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat text_format = Qt::AutoText;
    bool is_modal = false;
    bool has_parent = false;
    // The texts of a menu's entries, "-" for a separator.
    QStringList menu_entries;
};

class MODAL_DRIVER : public QObject
{
    Q_OBJECT

public:
    using ACTION = std::function<void(QWidget* window)>;

    MODAL_DRIVER();
    ~MODAL_DRIVER() override;

    // What to do with the next modal window that no earlier expectation takes; `action` runs in its event loop and must
    // see to it that the window closes.
    void expect(ACTION action);

    // Every modal window met so far, in order; the last of them (there must be one).
    const QList<MET_MODAL>& met() const { return m_met; }
    const MET_MODAL& last() const { return m_met.last(); }

    // What went wrong, one line each; empty when nothing did.
    QStringList problems() const;
    // Forgets everything.
    void reset();

    // Actions: accept the dialog (a message box: click its OK button), reject it, click the button of that text.
    static ACTION accept();
    static ACTION reject();
    static ACTION click(const QString& button_text);
    // Trigger the menu entry of that text; close the menu without a choice.
    static ACTION trigger(const QString& entry_text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void meet(QWidget* window);
    void close_left_open(QWidget* window, const QString& why);

    std::deque<ACTION> m_expected;
    QList<MET_MODAL> m_met;
    QStringList m_problems;
};
