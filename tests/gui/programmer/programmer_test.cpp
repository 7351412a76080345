// SPDX-License-Identifier: MIT
#include "programmer_test.h"

#include "gfpdb/gfpdb_mgr.h"

#include <QApplication>
#include <QFile>

namespace {

constexpr int DEADLINE_MS = 60000;

} // namespace

void PROGRAMMER_TEST::init()
{
    m_modals.reset();
    m_scratch = std::make_unique<QTemporaryDir>();
    QVERIFY(m_scratch->isValid());
    m_settings = std::make_unique<QSettings>(scratch("settings.ini"), QSettings::IniFormat);
    GFPDB_MGR::set_db_custom_dir(m_scratch->path().toStdString() + "/");
}

void PROGRAMMER_TEST::cleanup()
{
    m_window.reset();
    QCOMPARE(m_modals.problems(), QStringList());
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

void PROGRAMMER_TEST::open(const char* device, int scheme, const DIALOG_OPTIONS& options)
{
    HOST_CHOICE choice;
    choice.config_scheme = scheme;
    choice.device_name = device;
    m_window = std::make_unique<PROGRAMMER_WINDOW>(m_module, options, choice, *m_settings);
    m_window->show();
}

void PROGRAMMER_TEST::check(const QString& operations)
{
    constexpr const char* BOXES[] = {"m_erase_check", "m_blank_check", "m_program_check", "m_verify_check",
                                     "m_examine_check"};
    for (int i = 0; i < 5; ++i)
        child<QAbstractButton>(BOXES[i]).setChecked(operations.contains(QLatin1Char("ebpvx"[i])));
}

void PROGRAMMER_TEST::enter_file(const QString& file)
{
    auto& combo = child<QComboBox>("m_file_combo");
    combo.setFocus();
    combo.setCurrentText(file);
    QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    QVERIFY(QTest::qWaitFor([&] { return child<QLabel>("m_facts_label").text() != qs("The file is being read."); },
                            DEADLINE_MS));
}

QString PROGRAMMER_TEST::wait_for_verdict()
{
    const bool has_ended =
        QTest::qWaitFor([&] { return child<QAbstractButton>("m_start_button").isEnabled(); }, DEADLINE_MS);
    return has_ended ? verdict() : qs("still under way");
}

QString PROGRAMMER_TEST::run()
{
    click("m_start_button");
    return wait_for_verdict();
}

QString PROGRAMMER_TEST::make_file(const char* name, const QByteArray& bytes)
{
    QFile file(scratch(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", name);
    return file.fileName();
}

QByteArray PROGRAMMER_TEST::content(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 7 + i / 256);
    return bytes;
}
