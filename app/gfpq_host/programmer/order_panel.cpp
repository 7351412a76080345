// SPDX-License-Identifier: MIT
#include "programmer/order_panel.h"

#include "programmer/panel_form.h"
#include "run/number_text.h"

#include "gfpe/gfpe_trace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QSettings>
#include <QVBoxLayout>

namespace {

constexpr int CHECK_COLUMNS = 3;

const QString KEYS = QStringLiteral("programmer/");
const QString EXTENT_KEY = QStringLiteral("programmer/extent");
const QString START_KEY = QStringLiteral("programmer/start");
const QString LENGTH_KEY = QStringLiteral("programmer/length");

} // namespace

ORDER_PANEL::ORDER_PANEL() : m_extent_combo(new QComboBox)
{
    m_extent_combo->addItem(tr("What the file covers"), int(RUN_EXTENT::WHOLE_FILE));
    m_extent_combo->addItem(tr("The whole device"), int(RUN_EXTENT::WHOLE_DEVICE));
    m_extent_combo->addItem(tr("Address and length"), int(RUN_EXTENT::RANGE));
    allow_narrow(m_extent_combo);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(create_checks());
    auto* rows = new QWidget;
    QFormLayout* form = make_form(rows);
    add_row(form, tr("Ran&ge:"), m_extent_combo, "m_extent_combo");
    column->addWidget(rows);
    column->addWidget(create_range_fields());
    connect(m_extent_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ORDER_PANEL::show_extent);
    show_extent();
}

// The words are those of the flows, in every language.
QWidget* ORDER_PANEL::create_checks()
{
    struct CHECK
    {
        QCheckBox*& box;
        GFPE_PHASE phase;
        bool is_checked;
        const char* object_name;
    };
    const CHECK checks[] = {{m_erase_check, GFPE_PHASE::ERASE, true, "m_erase_check"},
                            {m_blank_check, GFPE_PHASE::BLANK_CHECK, false, "m_blank_check"},
                            {m_program_check, GFPE_PHASE::PROGRAM, true, "m_program_check"},
                            {m_verify_check, GFPE_PHASE::VERIFY, true, "m_verify_check"},
                            {m_examine_check, GFPE_PHASE::EXAMINE, false, "m_examine_check"}};
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    int place = 0;
    for (const CHECK& check : checks) {
        check.box = new QCheckBox(QString::fromUtf8(gfpe_phase_name(check.phase)));
        check.box->setObjectName(QLatin1String(check.object_name));
        check.box->setChecked(check.is_checked);
        grid->addWidget(check.box, place / CHECK_COLUMNS, place % CHECK_COLUMNS);
        ++place;
    }
    return page;
}

QWidget* ORDER_PANEL::create_range_fields()
{
    auto* page = new QWidget;
    QFormLayout* form = make_form(page);
    m_start_edit = new QLineEdit(position_text(0));
    add_row(form, tr("&Address:"), m_start_edit, "m_start_edit");
    m_length_edit = new QLineEdit(QStringLiteral("0x10000"));
    add_row(form, tr("Length:"), m_length_edit, "m_length_edit");
    return page;
}

RUN_EXTENT ORDER_PANEL::extent() const
{
    return static_cast<RUN_EXTENT>(m_extent_combo->currentData().toInt());
}

void ORDER_PANEL::show_extent()
{
    m_start_edit->parentWidget()->setVisible(extent() == RUN_EXTENT::RANGE);
}

bool ORDER_PANEL::read(RUN_WISH& wish) const
{
    wish.order.erase = m_erase_check->isChecked();
    wish.order.blank_check = m_blank_check->isChecked();
    wish.order.program = m_program_check->isChecked();
    wish.order.verify = m_verify_check->isChecked();
    wish.order.examine = m_examine_check->isChecked();
    wish.extent = extent();
    if (wish.extent != RUN_EXTENT::RANGE)
        return true;
    const std::optional<std::int64_t> start = parse_number(m_start_edit->text());
    const std::optional<std::int64_t> length = parse_number(m_length_edit->text());
    wish.range = {start.value_or(0), length.value_or(0)};
    return start && length;
}

void ORDER_PANEL::load(const QSettings& settings)
{
    const QList<QCheckBox*> checks = findChildren<QCheckBox*>();
    for (QCheckBox* check : checks)
        check->setChecked(settings.value(KEYS + check->objectName(), check->isChecked()).toBool());
    const int stored = m_extent_combo->findData(settings.value(EXTENT_KEY).toInt());
    m_extent_combo->setCurrentIndex(std::max(stored, 0));
    m_start_edit->setText(settings.value(START_KEY, m_start_edit->text()).toString());
    m_length_edit->setText(settings.value(LENGTH_KEY, m_length_edit->text()).toString());
}

void ORDER_PANEL::store(QSettings& settings) const
{
    const QList<QCheckBox*> checks = findChildren<QCheckBox*>();
    for (const QCheckBox* check : checks)
        settings.setValue(KEYS + check->objectName(), check->isChecked());
    settings.setValue(EXTENT_KEY, int(extent()));
    settings.setValue(START_KEY, m_start_edit->text());
    settings.setValue(LENGTH_KEY, m_length_edit->text());
}
