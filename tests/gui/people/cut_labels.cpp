// SPDX-License-Identifier: MIT
#include "cut_labels.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>

namespace {

// A text, the room it has, and the room it would take.
struct SHOWN_TEXT
{
    const QWidget* widget;
    QString text;
    QSize room;
    QSize needed;
    // Where the text is within its widget.
    QRect place;
};

QSize size_of(const QFontMetrics& metrics, const QString& text)
{
    return metrics.size(Qt::TextShowMnemonic, text);
}

SHOWN_TEXT look_at(const QLabel& label)
{
    const QRect room = label.contentsRect();
    const QFontMetrics metrics = label.fontMetrics();
    const QSize needed =
        label.wordWrap()
            ? metrics.boundingRect(QRect(0, 0, room.width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, label.text()).size()
            : size_of(metrics, label.text());
    return {&label, label.text(), room.size(), needed, label.rect()};
}

SHOWN_TEXT look_at(const QAbstractButton& button)
{
    const bool is_check = qobject_cast<const QCheckBox*>(&button) != nullptr;
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const QRect room = button.style()->subElementRect(
        is_check ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonContents, &option, &button);
    return {&button, button.text(), room.size(), size_of(button.fontMetrics(), button.text()), button.rect()};
}

// The sizes of tabs and header sections include margins of the style's choice; half of them must be left.
SHOWN_TEXT look_at(const QTabBar& bar, int tab)
{
    const QSize margins(bar.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &bar) / 2, 0);
    const QRect place = bar.tabRect(tab);
    return {&bar, bar.tabText(tab), place.size(), size_of(bar.fontMetrics(), bar.tabText(tab)) + margins, place};
}

SHOWN_TEXT look_at(const QHeaderView& header, int section)
{
    const QSize margins(header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header), 0);
    const QString text = header.model()->headerData(section, header.orientation()).toString();
    const QRect place(header.sectionViewportPosition(section), 0, header.sectionSize(section), header.height());
    return {&header, text, place.size(), size_of(header.fontMetrics(), text) + margins, place};
}

QList<SHOWN_TEXT> texts_of(const QWidget& window)
{
    QList<SHOWN_TEXT> texts;
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&window) && !label->text().isEmpty())
            texts.append(look_at(*label));
    }
    for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
        const bool has_text =
            qobject_cast<const QPushButton*>(button) != nullptr || qobject_cast<const QCheckBox*>(button) != nullptr;
        if (has_text && button->isVisibleTo(&window))
            texts.append(look_at(*button));
    }
    for (const QTabBar* const bar : window.findChildren<QTabBar*>()) {
        for (int tab = 0; bar->isVisibleTo(&window) && tab < bar->count(); ++tab)
            texts.append(look_at(*bar, tab));
    }
    for (const QHeaderView* const header : window.findChildren<QHeaderView*>()) {
        const bool has_texts = header->orientation() == Qt::Horizontal && header->isVisibleTo(&window);
        for (int section = 0; has_texts && section < header->count(); ++section)
            texts.append(look_at(*header, section));
    }
    return texts;
}

// True when nothing of the text's width is hidden by what its widget lies in. What is scrolled away upwards or
// downwards is there to be scrolled to.
bool is_whole(const SHOWN_TEXT& shown, const QWidget& window)
{
    const QWidget* widget = shown.widget;
    QRect place = shown.place;
    while (widget != &window) {
        if (place.left() < 0 || place.right() >= widget->width())
            return false;
        place.translate(widget->pos());
        widget = widget->parentWidget();
    }
    return place.left() >= 0 && place.right() < window.width();
}

} // namespace

QStringList cut_labels(QWidget& window)
{
    QStringList cut;
    const QList<SHOWN_TEXT> texts = texts_of(window);
    for (const SHOWN_TEXT& shown : texts) {
        const bool fits = shown.needed.width() <= shown.room.width() && shown.needed.height() <= shown.room.height();
        if (!fits || !is_whole(shown, window))
            cut.append(QLatin1String(shown.widget->metaObject()->className()) + QLatin1Char(' ') +
                       shown.widget->objectName() + QLatin1String(": ") + shown.text);
    }
    return cut;
}

int label_count(QWidget& window)
{
    return texts_of(window).size();
}
