// SPDX-License-Identifier: MIT

// What Qt prints while a form is built, and what is held back of it.
#include "dialog/gfpq_form.h"
#include "gui_test.h"

#include <QDialog>
#include <QLabel>
#include <QLoggingCategory>

#include <functional>

namespace {

// A dialog with a slot whose name has the form that automatic connection recognises.
class SLOT_DIALOG : public QDialog
{
    Q_OBJECT

public slots:
    void on_ok_clicked() {}
};

// A form that prints while it is built.
struct PRINTING_FORM
{
    std::function<void()> print;

    void setupUi(QDialog* dialog) const
    {
        if (print)
            print();
        QMetaObject::connectSlotsByName(dialog);
    }
};

const QString NO_SIGNAL = QStringLiteral("QMetaObject::connectSlotsByName: No matching signal for on_ok_clicked()");

QStringList g_printed;
QList<QtMsgType> g_types;

void note(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    g_printed.append(text);
    g_types.append(type);
}

void note_another(QtMsgType, const QMessageLogContext&, const QString& text)
{
    g_printed.append(QStringLiteral("another: ") + text);
}

} // namespace

class TEST_FORM_LINES : public GUI_TEST
{
    Q_OBJECT

private:
    QtMessageHandler m_of_test = nullptr;

    void set_up() override
    {
        g_printed.clear();
        g_types.clear();
        m_of_test = qInstallMessageHandler(&note);
    }
    void take_down() override { qInstallMessageHandler(m_of_test); }

private slots:
    void only_the_lines_of_the_automatic_connection_are_held_back()
    {
        SLOT_DIALOG dialog;
        PRINTING_FORM form;
        form.print = [] {
            qWarning("a style sheet cannot be read");
            qCritical("QMetaObject::connectSlotsByName: No matching signal for on_ok_clicked()");
            qWarning("QMetaObject::connectSlotsByName: Connecting slot on_ok_clicked() with the first of two");
            qWarning("QObject::connect: No such signal");
            qDebug("a hint");
        };

        gfpq_build_form(form, &dialog);

        QCOMPARE(
            g_printed,
            QStringList({QStringLiteral("a style sheet cannot be read"), NO_SIGNAL,
                         QStringLiteral("QMetaObject::connectSlotsByName: Connecting slot on_ok_clicked() with the "
                                        "first of two"),
                         QStringLiteral("QObject::connect: No such signal"), QStringLiteral("a hint")}));
        QCOMPARE(g_types, QList<QtMsgType>({QtWarningMsg, QtCriticalMsg, QtWarningMsg, QtWarningMsg, QtDebugMsg}));
    }

    void lines_are_held_back_while_a_form_is_built_only()
    {
        SLOT_DIALOG dialog;
        bool warned = false;
        PRINTING_FORM form;
        form.print = [&warned] { warned = QLoggingCategory::defaultCategory()->isWarningEnabled(); };
        QMetaObject::connectSlotsByName(&dialog);
        QCOMPARE(g_printed, QStringList{NO_SIGNAL});

        gfpq_build_form(form, &dialog);
        QCOMPARE(g_printed, QStringList{NO_SIGNAL});
        QVERIFY(warned);

        QMetaObject::connectSlotsByName(&dialog);
        QCOMPARE(g_printed, QStringList({NO_SIGNAL, NO_SIGNAL}));
        // And the handler of the host is the one that is installed.
        QVERIFY(qInstallMessageHandler(&note) == &note);
    }

    void a_handler_that_comes_while_a_form_is_built_stays()
    {
        SLOT_DIALOG dialog;
        PRINTING_FORM form;
        form.print = [] { qInstallMessageHandler(&note_another); };

        gfpq_build_form(form, &dialog);
        qWarning("afterwards");

        QCOMPARE(g_printed.last(), QStringLiteral("another: afterwards"));
    }

    void a_form_that_throws_leaves_the_handler_as_it_was()
    {
        SLOT_DIALOG dialog;
        PRINTING_FORM form;
        form.print = [] { throw 1; };

        QVERIFY_EXCEPTION_THROWN(gfpq_build_form(form, &dialog), int);

        QVERIFY(qInstallMessageHandler(&note) == &note);
    }
};

GFPQ_TEST_MAIN(TEST_FORM_LINES)

#include "test_form_lines.moc"
