// SPDX-License-Identifier: MIT

// Two users, Anna and Bert, have the same device open in a dialog each: nothing of either is lost. Anna's dialog is in
// a process of its own, which is this program again.
#include "lost_work_test.h"

#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_helper.h"
#include "msg/msg.h"

#include <QCoreApplication>
#include <QProcess>

#include <iostream>

namespace {

constexpr char FOR_ANNA[] = "--for-anna";
constexpr char DIRECTORY_VARIABLE[] = "LOST_WORK_DIRECTORY";
const QByteArray DONE = "done";
// A process that takes longer has died.
constexpr int ANSWER_MS = 60000;

// What the history calls a user. On a server, both have the same login.
std::string known_as(const char* user)
{
    return std::string(tests_are_on_server() ? SERVER_DATABASE::USER : user) + '@';
}

// What every user is told of another's change; the time is not known.
QString told(const char* what, const char* user)
{
    return qs("Failed to save flash as Configuration Device tab has invalid property value: , The device \"Mine\" was "
              "%1 by %2, "
              "UTC since it was read here.")
        .arg(qs(what), QString::fromStdString(known_as(user)));
}

// Her process, which ends when nothing more comes.
class ANNAS_PROCESS
{
public:
    explicit ANNAS_PROCESS(const std::string& directory)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(qs("USER"), qs("anna"));
        environment.insert(QLatin1String(DIRECTORY_VARIABLE), QFile::decodeName(directory.c_str()));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(), {QLatin1String(FOR_ANNA)});
    }
    ANNAS_PROCESS(const ANNAS_PROCESS&) = delete;
    ANNAS_PROCESS& operator=(const ANNAS_PROCESS&) = delete;
    ~ANNAS_PROCESS()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(ANSWER_MS);
    }

    // False when she could not do it; why is on the standard error.
    bool does(const QString& step)
    {
        m_process.write(step.toUtf8() + '\n');
        QByteArray answer;
        while (!answer.endsWith('\n') && m_process.waitForReadyRead(ANSWER_MS))
            answer += m_process.readAll();
        return answer.trimmed() == DONE;
    }

private:
    QProcess m_process;
};

} // namespace

// Anna does the steps that come as lines, in the directory that the environment names.
class ANNA : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void does_what_she_is_told()
    {
        GFPDB_MGR::set_db_custom_dir(qgetenv(DIRECTORY_VARIABLE).toStdString());
        std::string step;
        while (std::getline(std::cin, step)) {
            play(QString::fromStdString(step));
            if (QTest::currentTestFailed())
                return;
            std::cout << DONE.toStdString() << std::endl;
        }
    }

private:
    // She has no database of her own.
    bool is_on_server() const override { return false; }
};

class TEST_TWO_USERS : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void nothing_of_either_is_lost_data()
    {
        const QString both = qs("store Mine; store Other; open Mine; anna open Mine; ");
        const QString changed = both + qs("anna id = 0x02; anna apply; ");
        const QString says = told("changed", "anna");
        rows<QString>({
            {"the first Apply is refused, the second one wins",
             changed + qs("id = 0x01; apply says ") + says +
                 qs("; id is 0x01; device_id of Mine is 0x02; history is replaced Mine; "
                    "apply; device_id of Mine is 0x01; history is replaced Mine, replaced Mine")},
            {"then the other one is told",
             changed + qs("id = 0x01; apply says changed; apply; anna id = 0x03; anna apply says ") +
                 told("changed", "bert") +
                 qs("; device_id of Mine is 0x01; anna apply; device_id of Mine is 0x03; "
                    "history is replaced Mine, replaced Mine, replaced Mine")},
            {"OK stays open",
             changed + qs("id = 0x01; ok says ") + says +
                 qs("; dialog is open; device_id of Mine is 0x02; ok; dialog is closed; result is Mine; "
                    "device_id of Mine is 0x01")},
            {"a rename deletes nothing first",
             changed + qs("name = Yours; apply says ") + says +
                 qs("; devices is Mine, Other; history is replaced Mine; apply; devices is Other, Yours; "
                    "history is replaced Mine, replaced Mine")},
            {"Delete is refused once",
             changed + qs("delete says 20440; devices is Mine, Other; delete; devices is Other; "
                          "history is replaced Mine, deleted Mine")},
            {"who looks again has seen it",
             changed + qs("row Other; row Mine; id is 0x02; id = 0x01; apply; device_id of Mine is 0x01")},
            {"what was deleted is stored again at the second attempt",
             both + qs("anna delete; id = 0x01; apply says ") + told("deleted", "anna") +
                 qs("; devices is Other; apply; devices is Mine, Other; device_id of Mine is 0x01; "
                    "history is deleted Mine")},
            {"what was renamed is stored beside it at the second attempt",
             both + qs("anna name = Hers; anna apply; id = 0x01; apply says ") + told("renamed", "anna") +
                 qs("; devices is Hers, Other; apply; devices is Hers, Mine, Other; history is replaced Mine")},
            {"what was deleted can be deleted",
             both + qs("anna delete; delete; devices is Other; history is deleted Mine")},
            {"each change is told",
             changed + qs("id = 0x01; apply says changed; anna id = 0x04; anna apply; apply says changed; apply; "
                          "device_id of Mine is 0x01")},
            {"another device is nobody's business", both + qs("anna row Other; anna id = 0x02; anna apply; id = 0x01; "
                                                              "apply; device_id of Other is 0x02")},
            {"an Apply that changes nothing is told too", changed + qs("apply says ") + says},
        });
    }

    void nothing_of_either_is_lost()
    {
        m_anna.reset();
        for (const QString& step : row<QString>().split(qs("; "))) {
            if (step.startsWith(qs("anna ")))
                tell_anna(step.section(QLatin1Char(' '), 1));
            else
                play(step);
            if (QTest::currentTestFailed())
                return;
        }
    }

    void the_history_has_the_others_state_whole()
    {
        m_anna.reset();
        store("Mine");
        open("Mine");
        for (const char* step : {"open Mine", "id = 0x02", "apply"})
            tell_anna(qs(step));
        GFPDB_DATABASE database(directory());
        const GFPDB_RECORD hers = *database.load(database.find_stored({})[0]);
        // The dialog goes on with what was read before.
        open("Mine");
        tell_anna(qs("id = 0x03"));
        tell_anna(qs("apply"));
        const GFPDB_RECORD newest = *database.load(database.find_stored({})[0]);
        play(qs("id = 0x01; apply says changed; apply"));

        const std::optional<GFPDB_HISTORY_ENTRY> state = database.load_state(3);
        QVERIFY(hers.row.single_flows.size() > 100);
        QCOMPARE(state->row.device_id, std::string("0x03"));
        QCOMPARE(state->row.single_flows, hers.row.single_flows);
        QCOMPARE(state->row.quad_flows, hers.row.quad_flows);
        QCOMPARE(state->row.revision, newest.row.revision);
        QCOMPARE(state->row.saved_by.rfind(known_as("anna"), 0), std::size_t(0));
        QCOMPARE(state->changed_by.rfind(known_as("bert"), 0), std::size_t(0));
    }

    // A card has no ID that is checked: the host's message has the reason.
    void who_changed_a_card_is_in_the_message()
    {
        MSG_O::set_reason_source([](int) { return GFPDB_HELPER::get_active_flash_manager(false)->get_last_error(); });
        store("Mine");
        run_foreign(qs("UPDATE device SET scheme = 23"));
        open("Mine", PGMIO_SDMMC_X4);
        run_foreign(qs("UPDATE device SET density = '4GB', revision = 'hers', saved_by = 'anna@lab', "
                       "saved_at = '2026-11-22T09:14:33Z'"));

        m_modals.expect(MODAL_DRIVER::accept());
        click("m_apply_button");

        QVERIFY(m_modals.last().text.contains(qs("20439")));
        QCOMPARE(
            QString(m_modals.last().informative_text).remove(QChar(0x200B)),
            qs("The device \"Mine\" was changed by anna@lab on 2026-11-22 09:14 UTC since it was read here. Look at "
               "it again, or try again: then that state goes into the history."));
        QCOMPARE(stored(qs("Mine"), "density"), qs("4GB"));
        click("m_apply_button");
        QCOMPARE(stored(qs("Mine"), "density"), qs("128Mb"));
        MSG_O::set_reason_source(nullptr);
    }

private:
    void tell_anna(const QString& step)
    {
        if (!m_anna)
            m_anna = std::make_unique<ANNAS_PROCESS>(directory());
        QVERIFY2(m_anna->does(step), qPrintable(qs("Anna failed to ") + step));
    }

    std::unique_ptr<ANNAS_PROCESS> m_anna;
};

int main(int argc, char** argv)
{
    ZUI_APP app(argc, argv);
    if (app.arguments().contains(QLatin1String(FOR_ANNA))) {
        ANNA anna;
        // Her answers are on the standard output.
        return QTest::qExec(&anna, {app.arguments().first(), qs("-o"), qs("/dev/stderr,txt"), qs("-silent")});
    }
    qputenv("USER", "bert");
    TEST_TWO_USERS test;
    return QTest::qExec(&test, arguments_for_store(test, app.arguments()));
}

#include "test_two_users.moc"
