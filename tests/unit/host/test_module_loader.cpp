// SPDX-License-Identifier: MIT

// Loading the dialog module.
#include "dialog/dialog_call.h"
#include "dialog/module_loader.h"
#include "dialog/path_trust.h"
#include "fake_module.h"
#include "marking_translator.h"
#include "test_rows.h"

#include <QTest>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A directory that everyone may write, and one in which everyone may put things as in /tmp.
constexpr mode_t OPEN = 0777;
constexpr mode_t SHARED = 01777;
constexpr uid_t OTHER_USER = 12345;

} // namespace

class TEST_MODULE_LOADER : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_scratch = std::make_unique<QTemporaryDir>(); }

    void module_is_looked_for_beside_the_programs_only()
    {
        QCOMPARE(MODULE_LOADER::installed_files(QStringLiteral("/opt/programmer/bin")),
                 (QStringList{QStringLiteral("/opt/programmer/lib/gfpq/libpgm_gfpq.so"),
                              QStringLiteral("/opt/programmer/lib/libpgm_gfpq.so")}));
    }

    void module_is_loaded_and_called()
    {
        MODULE_LOADER loader({QStringLiteral(FAKE_MODULE)});
        const GFPQ_DYN_DLG entry_point = loader.entry_point();
        QVERIFY2(entry_point, qPrintable(loader.problem()));
        QCOMPARE(loader.problem(), QString());
        QVERIFY(loader.entry_point() == entry_point);

        HOST_CHOICE choice;
        choice.family = 3;
        choice.config_scheme = 8;
        choice.device_name = "MX25";
        DIALOG_OPTIONS options;
        options.enable_config_mode = false;
        options.family_schemes = {{3, {7, 8}}, {5, {}}};
        QWidget parent;
        parent.setWindowTitle(QStringLiteral("window"));
        const HOST_CHOICE result = open_dialog(entry_point, &parent, choice, options);

        QCOMPARE(result.family, FAKE_FAMILY);
        QCOMPARE(result.config_scheme, FAKE_SCHEME);
        QCOMPARE(result.device_name,
                 std::string("parent=window family=3 scheme=8 device=MX25 flags=101 map=3:7,8,;5:; base= locale=C "
                             "platform=offscreen"));

        options.enable_family = false;
        options.enable_config_mode = true;
        options.enable_edit = false;
        options.family_schemes.clear();
        QCOMPARE(open_dialog(entry_point, nullptr, choice, options).device_name,
                 std::string("parent=none family=3 scheme=8 device=MX25 flags=010 map= base= locale=C "
                             "platform=offscreen"));
    }

    void first_file_that_exists_counts()
    {
        MODULE_LOADER loader({place(QStringLiteral("missing.so")), copy_of_module(QStringLiteral("first.so")),
                              QStringLiteral(MODULE_WITHOUT_ENTRY_POINT)});

        QVERIFY2(loader.entry_point(), qPrintable(loader.problem()));
    }

    void missing_module_is_reported_with_its_places()
    {
        MODULE_LOADER loader({QStringLiteral("/no/such/one.so"), QStringLiteral("/no/such/other.so")});

        QVERIFY(!loader.entry_point());

        QCOMPARE(loader.problem(), QStringLiteral("The dialog module was not found. Searched:\n"
                                                  "/no/such/one.so\n/no/such/other.so"));
    }

    void problems_are_in_the_language_of_the_program()
    {
        const MARKING_TRANSLATOR translator("MODULE_LOADER");
        const QString text_file = place(QStringLiteral("text.so"));
        QVERIFY(QFile(text_file).open(QIODevice::WriteOnly));
        const QString open_to_all = copy_of_module(QStringLiteral("open.so"));
        QVERIFY(QFile::setPermissions(open_to_all, QFile::permissions(open_to_all) | QFile::WriteOther));

        for (const QString& path :
             {QStringLiteral("/no/such.so"), text_file, open_to_all, QStringLiteral(MODULE_WITHOUT_ENTRY_POINT)})
            QVERIFY2(problem_of(path).startsWith(QLatin1String("[The dialog module")), qPrintable(problem_of(path)));
    }

    void file_that_is_not_a_module_is_reported()
    {
        const QString text_file = place(QStringLiteral("text.so"));
        QFile file(text_file);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no library");
        file.close();
        const auto tells = [](const QString& path, const QString& problem) {
            return problem_of(path).contains(problem) && problem_of(path).size() > problem.size();
        };

        QVERIFY(tells(m_scratch->path(), QStringLiteral("The dialog module was not found.")));
        QVERIFY(tells(text_file, QStringLiteral("The dialog module %1 cannot be loaded:\n").arg(text_file)));
        QVERIFY(tells(QStringLiteral(MODULE_WITH_MISSING_SYMBOL), QStringLiteral("a_function_that_nobody_has")));
        QCOMPARE(problem_of(QStringLiteral(MODULE_WITHOUT_ENTRY_POINT)),
                 QStringLiteral("The dialog module " MODULE_WITHOUT_ENTRY_POINT " has no function \"gfpq_dyn_dlg\"."));
    }

    void module_that_everyone_may_change_is_not_loaded_data()
    {
        rows<QString>({{"itself", "a/b/c/module.so"}, {"in it", "a/b/c"}, {"one below", "a/b"}, {"two below", "a"}});
    }

    void module_that_everyone_may_change_is_not_loaded()
    {
        const QString open_place = row<QString>();
        const QString path = copy_of_module(QStringLiteral("a/b/c/module.so"));
        set_mode(open_place, OPEN);

        QCOMPARE(problem_of(path), refusal(path, open_place));
    }

    void module_by_a_place_that_everyone_may_change_is_not_loaded_data()
    {
        rows<QString, QString, QString>(
            {{"link to the file", "good/module.so", "open/link.so", "open/link.so"},
             {"link to its directory", "good", "open/link", "open/link/module.so"},
             {"link below", "good/module.so", "open/below/link.so", "open/below/link.so"},
             {"link into it", "open/module.so", "good/link.so", "good/link.so"},
             {"chain of links", "good/module.so", "open/second.so", "good/first.so"},
             {"left again", "good/module.so", "open/away/link.so", "open/away/../../good/module.so"}});
    }

    void module_by_a_place_that_everyone_may_change_is_not_loaded()
    {
        const auto [target, link, module] = row<QString, QString, QString>();
        copy_of_module(QStringLiteral("good/module.so"));
        copy_of_module(QStringLiteral("open/module.so"));
        make_link(place(target), link);
        make_link(QStringLiteral("../open/second.so"), QStringLiteral("good/first.so"));
        set_mode(QStringLiteral("open"), OPEN);

        QCOMPARE(problem_of(place(module)), refusal(place(module), QStringLiteral("open")));
    }

    void entry_of_another_user_in_a_shared_directory_is_not_trusted_data()
    {
        rows<QString>({{"file", "shared/module.so"}, {"directory", "shared/below"}, {"link", "shared/link.so"}});
    }

    // Only root can give a file away; for everyone else the rule is shown by what belongs to the user already.
    void entry_of_another_user_in_a_shared_directory_is_not_trusted()
    {
        const QString entry = row<QString>();
        copy_of_module(QStringLiteral("good/module.so"));
        copy_of_module(QStringLiteral("shared/module.so"));
        copy_of_module(QStringLiteral("shared/below/module.so"));
        make_link(place(QStringLiteral("good/module.so")), QStringLiteral("shared/link.so"));
        set_mode(QStringLiteral("shared"), SHARED);
        const bool is_directory = QFileInfo(place(entry)).isDir();
        const QString path = is_directory ? place(entry) + QLatin1String("/module.so") : place(entry);
        QCOMPARE(problem_of(path), QString());

        const bool is_given = ::lchown(QFile::encodeName(place(entry)).constData(), OTHER_USER, gid_t(-1)) == 0;

        QCOMPARE(is_given, ::geteuid() == 0);
        QCOMPARE(problem_of(path), is_given ? refusal(path, entry) : QString());
    }

    void module_of_ones_own_in_a_shared_directory_is_loaded()
    {
        const QString path = copy_of_module(QStringLiteral("shared/below/module.so"));
        set_mode(QStringLiteral("shared"), SHARED);

        QCOMPARE(problem_of(path), QString());
    }

    void module_by_links_that_only_the_user_may_change_is_loaded()
    {
        copy_of_module(QStringLiteral("good/module.so"));
        make_link(QStringLiteral("module.so"), QStringLiteral("good/second.so"));
        make_link(place(QStringLiteral("good")), QStringLiteral("link"));

        QCOMPARE(problem_of(place(QStringLiteral("link/./second.so"))), QString());
    }

    void module_that_is_loaded_is_the_one_that_was_looked_at()
    {
        const QString path = copy_of_module(QStringLiteral("good/module.so"));
        make_link(path, QStringLiteral("link.so"));

        MODULE_LOADER loader({place(QStringLiteral("link.so"))});
        Dl_info loaded = {};
        QVERIFY(::dladdr(reinterpret_cast<void*>(loader.entry_point()), &loaded) != 0);

        QCOMPARE(QFile::decodeName(loaded.dli_fname), QFileInfo(path).canonicalFilePath());
    }

    void links_in_a_circle_are_a_missing_module()
    {
        make_link(QStringLiteral("second.so"), QStringLiteral("first.so"));
        make_link(QStringLiteral("first.so"), QStringLiteral("second.so"));
        const QString path = place(QStringLiteral("first.so"));

        QVERIFY2(problem_of(path).startsWith(QLatin1String("The dialog module was not found")),
                 qPrintable(problem_of(path)));
        QCOMPARE(follow_path(path).real_path, QString());
    }

    void loading_is_tried_again_after_a_failure()
    {
        MODULE_LOADER loader({place(QStringLiteral("later.so"))});
        QVERIFY(!loader.entry_point());

        copy_of_module(QStringLiteral("later.so"));

        QVERIFY(loader.entry_point());
        QCOMPARE(loader.problem(), QString());
    }

private:
    QString place(const QString& name) const { return m_scratch->filePath(name); }
    // Names are those of entries of the scratch directory; missing directories are made.
    QString copy_of_module(const QString& name)
    {
        const QString copy = place(name);
        QDir().mkpath(QFileInfo(copy).path());
        if (!QFile::copy(QStringLiteral(FAKE_MODULE), copy))
            qFatal("cannot copy the module");
        return copy;
    }

    void make_link(const QString& target, const QString& name)
    {
        QDir().mkpath(QFileInfo(place(name)).path());
        if (!QFile::link(target, place(name)))
            qFatal("cannot make the link");
    }

    void set_mode(const QString& name, mode_t mode) const
    {
        if (::chmod(QFile::encodeName(place(name)).constData(), mode) != 0)
            qFatal("cannot set the mode");
    }

    // What the loader says of `path`; empty when it takes the module.
    static QString problem_of(const QString& path)
    {
        MODULE_LOADER loader({path});
        const bool is_loaded = loader.entry_point() != nullptr;
        if (is_loaded != loader.problem().isEmpty())
            qFatal("the loader contradicts itself");
        return loader.problem();
    }

    // What it says when it does not take `path` because everyone may change `open_place`.
    QString refusal(const QString& path, const QString& open_place) const
    {
        return QStringLiteral("The dialog module %1 is not loaded: everyone may change %2.")
            .arg(path, place(open_place));
    }

    std::unique_ptr<QTemporaryDir> m_scratch;
};

QTEST_MAIN(TEST_MODULE_LOADER)

#include "test_module_loader.moc"
