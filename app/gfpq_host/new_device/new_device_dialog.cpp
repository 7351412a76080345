// SPDX-License-Identifier: MIT
#include "new_device/new_device_dialog.h"

#include "new_device/device_storage.h"
#include "new_device/place_fields.h"
#include "new_device/problem_line.h"
#include "new_device/read_out_file.h"
#include "new_device/value_fields.h"
#include "programmer/panel_form.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int FIRST_WIDTH = 980;
constexpr int FIRST_HEIGHT = 640;
// Values and remarks.
constexpr int VALUES_SHARE = 3;
constexpr int REMARKS_SHARE = 2;

// True when there is more to look at than the one value that was entered.
bool is_more_than_one(const std::vector<DRAFT_ROW>& seen, const NEW_DEVICE_DRAFT& draft)
{
    int changed = 0;
    for (std::size_t row = 0; row < seen.size(); ++row)
        changed += seen[row].text != draft.rows()[row].text ? 1 : 0;
    return changed > 1;
}

bool has_news(const QStringList& seen, const QStringList& warnings)
{
    return std::any_of(warnings.begin(), warnings.end(), [&seen](const QString& each) { return !seen.contains(each); });
}

// Can be read and copied with the keyboard; Tab leaves it.
QPlainTextEdit* add_text(QVBoxLayout* column, const QString& title, const char* object_name)
{
    auto* text = new QPlainTextEdit;
    text->setObjectName(QLatin1String(object_name));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* label = new QLabel(title);
    label->setBuddy(text);
    column->addWidget(label);
    column->addWidget(text, 1);
    return text;
}

} // namespace

NEW_DEVICE_DIALOG::NEW_DEVICE_DIALOG(QWidget* parent, NEW_DEVICE_DRAFT& draft, const HOST_OFFER& offer,
                                     const DIALOG_OPTIONS& options)
    : QDialog(parent), m_draft(draft)
{
    setWindowTitle(draft.origin().isEmpty() ? tr("New Device") : tr("New Device: %1").arg(draft.origin()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(create_values(offer, options));
    splitter->addWidget(create_remarks());
    splitter->setStretchFactor(0, VALUES_SHARE);
    splitter->setStretchFactor(1, REMARKS_SHARE);
    m_problem = new PROBLEM_LINE(QStringLiteral("m_new_device_problem"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(splitter, 1);
    column->addWidget(m_problem);
    column->addWidget(create_buttons());
    take_place();
    set_first_size(this, {FIRST_WIDTH, FIRST_HEIGHT});
    splitter->setSizes({width() * VALUES_SHARE, width() * REMARKS_SHARE});
    m_values->go_to(m_draft.first_wrong_row());
}

QWidget* NEW_DEVICE_DIALOG::create_values(const HOST_OFFER& offer, const DIALOG_OPTIONS& options)
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    auto* place = new QWidget;
    m_place = new PLACE_FIELDS(offer, options, make_form(place), m_draft.family(), m_draft.scheme());
    m_values = new VALUE_FIELDS(m_draft);
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("m_values_area"));
    area->setWidget(m_values);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    column->addWidget(place);
    column->addWidget(area, 1);
    connect(m_place, &PLACE_FIELDS::changed, this, &NEW_DEVICE_DIALOG::take_place);
    connect(m_values, &VALUE_FIELDS::changed, this, &NEW_DEVICE_DIALOG::show_remarks);
    return page;
}

QWidget* NEW_DEVICE_DIALOG::create_remarks()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    m_warnings = add_text(column, tr("&Warnings:"), "m_warnings_text");
    m_parts = add_text(column, tr("&Listed parts with this ID:"), "m_parts_text");
    return page;
}

QWidget* NEW_DEVICE_DIALOG::create_buttons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* create = buttons->button(QDialogButtonBox::Ok);
    create->setText(tr("Create &Device"));
    create->setObjectName(QStringLiteral("m_create_button"));
    // A click leaves the focus in the editor, so that what follows from its text is shown before anything is stored.
    create->setFocusPolicy(Qt::TabFocus);
    connect(buttons, &QDialogButtonBox::accepted, this, &NEW_DEVICE_DIALOG::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NEW_DEVICE_DIALOG::reject);
    if (!m_draft.sfdp_bytes().empty()) {
        QPushButton* save = buttons->addButton(tr("Save &Read-Out..."), QDialogButtonBox::ActionRole);
        save->setObjectName(QStringLiteral("m_save_read_out_button"));
        connect(save, &QPushButton::clicked, this, &NEW_DEVICE_DIALOG::save_read_out);
    }
    return buttons;
}

void NEW_DEVICE_DIALOG::show_remarks()
{
    m_problem->show_problem(QString());
    m_warnings->setPlainText(m_draft.warnings().isEmpty() ? tr("none")
                                                          : m_draft.warnings().join(QLatin1String("\n\n")));
    QStringList parts;
    for (const LISTED_PART& part : m_draft.listed_parts()) {
        QStringList lines{part.name};
        for (const QString& difference : part.differences)
            lines.append(QStringLiteral("  - ") + difference);
        if (part.differences.isEmpty())
            lines.append(QStringLiteral("  ") + tr("no differences"));
        parts.append(lines.join(QLatin1Char('\n')));
    }
    m_parts->setPlainText(parts.isEmpty() ? tr("none") : parts.join(QLatin1String("\n\n")));
}

void NEW_DEVICE_DIALOG::take_place()
{
    m_draft.set_place(m_place->family(), m_place->scheme());
    m_values->show_values();
    show_remarks();
}

void NEW_DEVICE_DIALOG::save_read_out()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Save the Read-Out"));
    QString problem;
    if (!file.isEmpty() && !READ_OUT_FILE::save(file, m_draft.sfdp_bytes(), problem))
        QMessageBox::warning(this, windowTitle(), problem);
}

void NEW_DEVICE_DIALOG::accept()
{
    const std::vector<DRAFT_ROW> rows = m_draft.rows();
    const QStringList warnings = m_draft.warnings();
    m_values->take_entered();
    QString problem;
    const std::optional<GFPDB_RECORD> device = m_draft.make(problem);
    if (device && (is_more_than_one(rows, m_draft) || has_news(warnings, m_draft.warnings()))) {
        m_problem->show_problem(
            tr("What was entered has changed other values or the warnings. Look at them, then create the device."));
        return;
    }
    if (device && store_new_device(*device, problem)) {
        m_device = *device;
        QDialog::accept();
        return;
    }
    m_problem->show_problem(problem);
    m_values->go_to(m_draft.first_wrong_row());
}
