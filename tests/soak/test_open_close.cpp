// Opening and closing the dialog again and again keeps memory flat.
#include "soak_stand.h"

#include "gfpq_dlg.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"

#include <QTimer>
#include <QtTest>

#include <algorithm>

namespace {

constexpr int FAMILY = 3;
// In one turn every device, kind of flow and page has its place: memory is looked at after whole turns.
constexpr int OPENINGS_IN_A_TURN = 6;
constexpr int DEFAULT_OPENINGS = 72;
// Caches of Qt, of fonts and of the library fill meanwhile.
constexpr int WARM_UP_OPENINGS = 60;
// Less than the smallest widget or the smallest action of a flow that could be left behind each time.
constexpr double LARGEST_GROWTH = 150.0;

void open_and_close(int scheme, const std::string& device, int page)
{
    GFPQ_DLG dialog(nullptr, FAMILY, scheme, device, true, true, true, {});
    QTimer::singleShot(0, &dialog, [&dialog, page] {
        dialog.findChild<QTabWidget*>(QStringLiteral("m_prog_flows_tab_widget"))->setCurrentIndex(page);
        QCoreApplication::processEvents();
        dialog.reject();
    });
    dialog.exec();
}

} // namespace

class TEST_OPEN_CLOSE : public QObject
{
    Q_OBJECT

private slots:
    void memory_stays_flat();

private:
    static std::vector<std::size_t> open_in_turn(int openings);
};

// What is allocated after each turn: a device of the user's, a built-in one, a new one; both kinds of flow; every page.
std::vector<std::size_t> TEST_OPEN_CLOSE::open_in_turn(int openings)
{
    const char* const devices[] = {"Mine", "MX25L25645G", ""};
    std::vector<std::size_t> allocated;
    for (int i = 0; i < openings; ++i) {
        open_and_close(i % 2 == 0 ? PGMIO_ACTIVE_SERIAL_X4 : PGMIO_ACTIVE_SERIAL, devices[i % 3],
                       i % OPENINGS_IN_A_TURN);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        if ((i + 1) % OPENINGS_IN_A_TURN == 0)
            allocated.push_back(allocated_bytes());
    }
    return allocated;
}

void TEST_OPEN_CLOSE::memory_stays_flat()
{
    SOAK_STAND stand;
    GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL_X4);
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(true);
    manager->set_device_family(FAMILY);
    GFPDB_FLASH* const device = manager->create_flash("Mine");
    device->set_user_defined(true);
    QVERIFY(manager->save_flash(device, std::string()));

    open_in_turn(WARM_UP_OPENINGS);
    const std::vector<std::size_t> allocated =
        open_in_turn(number_from_environment("GFPQ_SOAK_OPENINGS", DEFAULT_OPENINGS));

    // Caches come and go: the least of the first half is compared with the least of the second.
    const auto half = std::ptrdiff_t(allocated.size() / 2);
    const std::size_t first = *std::min_element(allocated.begin(), allocated.begin() + half);
    const std::size_t last = *std::min_element(allocated.begin() + half, allocated.end());
    const double growth = (double(last) - double(first)) / double(half * OPENINGS_IN_A_TURN);
    std::printf("%zu openings: %+.1f bytes each, %zu bytes at the end\n", allocated.size() * OPENINGS_IN_A_TURN, growth,
                allocated.back());
    QVERIFY2(growth < LARGEST_GROWTH, qPrintable(QStringLiteral("%1 bytes for each opening").arg(growth)));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QCOMPARE(stand.take_warnings(), QStringList());
}

int main(int argc, char** argv)
{
    allow_a_long_run();
    ZUI_APP app(argc, argv);
    TEST_OPEN_CLOSE test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_open_close.moc"
