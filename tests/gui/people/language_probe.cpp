// SPDX-License-Identifier: MIT

// Prints one text of the module in the language that the user's environment asks for.
#include "text_catalogue.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const TEXT_CATALOGUE texts(QStringLiteral("gfpq"), {QStringLiteral(":/gfpq/translations")});
    std::fputs(qUtf8Printable(QCoreApplication::translate("gfpq_dlg", "Cancel")), stdout);
    return 0;
}
