// SPDX-License-Identifier: MIT
#include "dialog/choice_combo.h"

#include "dstr/dstr.h"
#include "gfpdb/gfpdb_enums.h"
#include "words/gfpq_vocabulary.h"

#include <QAbstractItemModel>
#include <QSignalBlocker>

#include <algorithm>

QString family_text(int family)
{
    return QString::fromStdString(dstr_get_user_string(family));
}

QString scheme_text(int scheme)
{
    const bool is_known = scheme >= 0 && scheme < PGMIO_CONFIG_SCHEME_COUNT;
    return is_known ? QString::fromUtf8(PGMIO_CONFIG_SCHEME_NAMES[scheme]) : QString::number(scheme);
}

QString device_title(const GFPDB_RECORD& device)
{
    QString name = QString::fromStdString(device.row.name);
    if (device.row.scheme < 0)
        return name;
    return QStringLiteral("%1 (%2, %3)").arg(name, family_text(device.row.family), scheme_text(device.row.scheme));
}

QComboBox* make_narrow_combo()
{
    auto* combo = new QComboBox;
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return combo;
}

void show_values(QComboBox* combo, std::vector<int> values, int current, QString (*text_of)(int value))
{
    const QSignalBlocker silence(combo);
    if (std::find(values.begin(), values.end(), current) == values.end())
        values.push_back(current);
    combo->clear();
    for (const int value : values)
        combo->addItem(text_of(value), value);
    combo->model()->sort(0);
    combo->setCurrentIndex(combo->findData(current));
}
