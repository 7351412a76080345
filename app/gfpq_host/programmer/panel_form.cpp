// SPDX-License-Identifier: MIT
#include "programmer/panel_form.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>

namespace {

constexpr int FIELD_CHARACTERS = 10;
// What a window manager adds around a window, and panels of the desktop, take the rest.
constexpr int SCREEN_SHARE_PERCENT = 92;

// What a screen reader says for a label: without its access key and its colon.
QString name_of(QString label)
{
    label.remove(QRegularExpression(QStringLiteral("\\(&.\\)|&|\\s*:\\s*$")));
    return label;
}

// What it watches gets no turn of the wheel; the widget around it does.
class WHEEL_FILTER : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }
};

} // namespace

void set_first_size(QWidget* window, const QSize& useful)
{
    const QSize room = QGuiApplication::primaryScreen()->availableSize() * SCREEN_SHARE_PERCENT / 100;
    window->resize(useful.boundedTo(room));
}

void keep_wheel_from_fields(QWidget* page)
{
    auto* filter = new WHEEL_FILTER(page);
    const QList<QWidget*> fields = page->findChildren<QWidget*>();
    for (QWidget* field : fields) {
        if (qobject_cast<QComboBox*>(field) || qobject_cast<QAbstractSpinBox*>(field))
            field->installEventFilter(filter);
    }
}

QFormLayout* make_form(QWidget* page)
{
    auto* form = new QFormLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

void add_row(QFormLayout* form, const QString& label, QWidget* widget, const char* object_name, QWidget* row)
{
    widget->setObjectName(QLatin1String(object_name));
    auto* title = new QLabel(label);
    title->setBuddy(widget);
    widget->setAccessibleName(name_of(label));
    form->addRow(title, row ? row : widget);
}

QWidget* side_by_side(QWidget* first, QWidget* second)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(first, 1);
    layout->addWidget(second);
    return row;
}

void allow_narrow(QComboBox* combo)
{
    combo->setMinimumWidth(combo->fontMetrics().averageCharWidth() * FIELD_CHARACTERS);
}

QComboBox* make_editable_combo()
{
    auto* combo = new QComboBox;
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(FIELD_CHARACTERS);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return combo;
}
