// SPDX-License-Identifier: MIT

// Opening and closing the dialog again and again keeps memory flat.
#include "soak_stand.h"

#include "dialog/gfpq_dlg.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"

#include <QTest>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int FAMILY = 3;
// In one turn every device, kind of flow and page has its place: memory is looked at after whole turns.
constexpr int OPENINGS_IN_A_TURN = 6;
constexpr int DEFAULT_OPENINGS = 144;
// Memory goes up and down from turn to turn: the least in a stretch of turns counts.
constexpr int TURNS_IN_A_STRETCH = 4;
constexpr int OPENINGS_IN_A_STRETCH = TURNS_IN_A_STRETCH * OPENINGS_IN_A_TURN;
constexpr int FEWEST_STRETCHES = 3;
constexpr int LONGEST_WARM_UP_TURNS = 100;
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

// A device of the user's, a built-in one, a new one; both kinds of flow; every page. Returns what is allocated then.
std::size_t open_in_turn()
{
    const char* const devices[] = {"Mine", "MX25L25645G", ""};
    for (int i = 0; i < OPENINGS_IN_A_TURN; ++i) {
        open_and_close(i % 2 == 0 ? PGMIO_ACTIVE_SERIAL_X4 : PGMIO_ACTIVE_SERIAL, devices[i % 3], i);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    return allocated_bytes();
}

std::size_t least_in_stretch()
{
    std::size_t least = open_in_turn();
    for (int turn = 1; turn < TURNS_IN_A_STRETCH; ++turn)
        least = std::min(least, open_in_turn());
    return least;
}

// Caches of Qt, of fonts and of the library fill first, some sooner, some later: until a stretch grows no more over the
// one before. Returns the number of turns that took.
int warm_up()
{
    std::size_t former = least_in_stretch();
    int turns = TURNS_IN_A_STRETCH;
    for (bool grows = true; grows && turns < LONGEST_WARM_UP_TURNS; turns += TURNS_IN_A_STRETCH) {
        const std::size_t least = least_in_stretch();
        grows = least > former;
        former = least;
    }
    return turns;
}

// By how many bytes memory grows with each opening.
double growth_of_opening(const std::vector<std::size_t>& stretches)
{
    return usual_growth(stretches) / OPENINGS_IN_A_STRETCH;
}

} // namespace

class TEST_OPEN_CLOSE : public QObject
{
    Q_OBJECT

private slots:
    void what_is_lost_at_each_opening_is_growth()
    {
        constexpr std::size_t LOST = std::size_t(OPENINGS_IN_A_STRETCH) * 200;
        QCOMPARE(growth_of_opening({1000, 1000 + LOST, 1000 + 2 * LOST}), 200.0);
        QCOMPARE(growth_of_opening({1000, 1000 + LOST, 500, 500 + LOST, 500 + 2 * LOST}), 200.0);
    }

    void a_cache_that_is_emptied_and_filled_again_is_not_growth()
    {
        QCOMPARE(growth_of_opening({90000, 90000, 10000, 90000, 90000, 90000}), 0.0);
        QCOMPARE(growth_of_opening({90000, 90240, 10000, 10240, 90000, 90240}), 10.0);
    }

    void memory_stays_flat()
    {
        SOAK_STAND stand;
        GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL_X4);
        GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(true);
        manager->set_device_family(FAMILY);
        GFPDB_FLASH* const device = manager->create_flash("Mine");
        device->set_user_defined(true);
        QVERIFY(manager->save_flash(device, std::string()));

        const int openings = number_from_environment("GFPQ_SOAK_OPENINGS", DEFAULT_OPENINGS);
        const int warm_up_turns = warm_up();
        const int whole_stretches = (openings + OPENINGS_IN_A_STRETCH - 1) / OPENINGS_IN_A_STRETCH;
        std::vector<std::size_t> stretches(std::size_t(std::max(FEWEST_STRETCHES, whole_stretches)));
        std::generate(stretches.begin(), stretches.end(), least_in_stretch);
        const double growth = growth_of_opening(stretches);
        std::printf("%zu openings after %d: %+.1f bytes each; %zu bytes at first, %zu at the end\n",
                    stretches.size() * OPENINGS_IN_A_STRETCH, warm_up_turns * OPENINGS_IN_A_TURN, growth,
                    stretches.front(), stretches.back());
        QVERIFY2(growth < LARGEST_GROWTH, qPrintable(QStringLiteral("%1 bytes for each opening").arg(growth)));
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
        QCOMPARE(stand.take_warnings(), QStringList());
    }
};

int main(int argc, char** argv)
{
    allow_a_long_run();
    ZUI_APP app(argc, argv);
    TEST_OPEN_CLOSE test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_open_close.moc"
