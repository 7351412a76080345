// SPDX-License-Identifier: MIT
#include "words/gfpq_warning.h"

#include <QMessageBox>

void gfpq_show_warning(const QString& text)
{
    QMessageBox box;
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}
