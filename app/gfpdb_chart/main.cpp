// SPDX-License-Identifier: MIT

// The program behind "gfpdb chart", with the same arguments. It needs no display.
#include "cli_program.h"
#include "draw_command.h"

#include <QApplication>
#include <QFont>
#include <QLoggingCategory>

namespace {

// What programs on a desktop have; without one, Qt's texts are larger.
constexpr int FONT_POINTS = 10;

// Whatever screen there is: a file is to look the same everywhere.
std::unique_ptr<QCoreApplication> make_application(int& argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt warns of what only a desktop has.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    auto application = std::make_unique<QApplication>(argc, argv);
    QFont font = QApplication::font();
    font.setPointSize(FONT_POINTS);
    // Letters that are joined into one sign are not found by who searches for them.
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
    return application;
}

} // namespace

int main(int argc, char** argv)
{
    return cli_main(argc, argv,
                    {"gfpdb", "Draws the flow charts of the flash database.", {draw_command()}, make_application});
}
