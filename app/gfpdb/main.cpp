// SPDX-License-Identifier: MIT

// gfpdb: the command line tool of the flash database.
#include "cli_program.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>

namespace {

// Arguments and paths are UTF-8 also where the locale is plain ASCII, as in many build machines.
void use_utf8()
{
    constexpr int UTF8_MIB = 106;
    if (QTextCodec::codecForLocale()->mibEnum() != UTF8_MIB)
        QTextCodec::setCodecForLocale(QTextCodec::codecForMib(UTF8_MIB));
}

} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    use_utf8();
    const QCoreApplication application(argc, argv);
    return cli_run(application.arguments());
}
