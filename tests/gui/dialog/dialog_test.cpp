// SPDX-License-Identifier: MIT
#include "dialog_test.h"

#include <QGraphicsRectItem>

namespace {

// Questions whose number and place are the dialog's own business.
const QStringList READING{QStringLiteral("is_property_used"),   QStringLiteral("get_db_custom_dir"),
                          QStringLiteral("get_action_type"),    QStringLiteral("get_property_enum_list"),
                          QStringLiteral("get_property_label"), QStringLiteral("get_property_value"),
                          QStringLiteral("set_property_value"), QStringLiteral("get_actions")};

// Operations of the database that are there for other programs; the dialog never calls them.
const char* const FOREIGN_CALLS[] = {
    "get_device_family", "get_config_scheme", "is_builtin_flash", "is_custom_flash",      "get_last_error",
    "is_writable",       "restore_flash",     "is_template",      "get_revision",         "set_name",
    "find_operation",    "get_action_count",  "has_property",     "get_property_default", "get_database_problem"};

} // namespace

QStringList list_of(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

QStringList flows_named(const QString& name)
{
    QStringList flows;
    for (int operation = 0; operation < 5; ++operation)
        flows.append(QStringLiteral("0:%1 %2").arg(name).arg(operation));
    return flows;
}

void set_texts(FLASH_DOUBLE& flash, const std::string& id, const std::string& voltage, const std::string& density,
               const std::string& flow_template)
{
    flash.strings = {{GFPDB_FLASH_DEVICE_ID, id},
                     {GFPDB_FLASH_VOLTAGE, voltage},
                     {GFPDB_FLASH_DENSITY, density},
                     {GFPDB_FLASH_FLOW_TEMPLATE, flow_template}};
}

void set_numbers(FLASH_DOUBLE& flash, int total_die, int single_io_clocks, int quad_io_clocks)
{
    flash.ints = {{GFPDB_FLASH_TOTAL_DIE, total_die},
                  {GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, single_io_clocks},
                  {GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, quad_io_clocks}};
}

DIALOG_ARGS with_map(std::map<int, std::vector<int>> family_schemes)
{
    DIALOG_ARGS args;
    args.family_schemes = std::move(family_schemes);
    return args;
}

QString first_difference(const QStringList& actual, const QStringList& expected)
{
    const int length = qMax(actual.size(), expected.size());
    for (int index = 0; index < length; ++index) {
        const QString made = actual.value(index, QStringLiteral("(end)"));
        const QString wanted = expected.value(index, QStringLiteral("(end)"));
        if (made != wanted)
            return QStringLiteral("call %1 is %2, expected %3").arg(QString::number(index), made, wanted);
    }
    return QString();
}

void DIALOG_TEST::set_up()
{
    m_forbidden_calls.clear();
    for (const char* name : FOREIGN_CALLS) {
        log().on_call(QLatin1String(name), [this](const QString& call) { m_forbidden_calls.append(call); });
    }
    log().on_call(QStringLiteral("is_property_used"), [this](const QString& call) {
        if (call.endsWith(QLatin1String("(7)")))
            m_forbidden_calls.append(call);
    });
    fill_world();
}

void DIALOG_TEST::take_down()
{
    m_dlg.reset();
    QCOMPARE(m_forbidden_calls, QStringList());
}

GFPQ_DLG& DIALOG_TEST::open_recorded(const DIALOG_ARGS& args)
{
    m_dlg.reset();
    m_dlg =
        std::make_unique<GFPQ_DLG>(args.parent, args.family, args.config_scheme, args.device_name, args.enable_family,
                                   args.enable_config_mode, args.enable_edit, args.family_schemes);
    return *m_dlg;
}

GFPQ_DLG& DIALOG_TEST::open(const DIALOG_ARGS& args)
{
    open_recorded(args);
    log().clear();
    return *m_dlg;
}

GFPQ_DLG& DIALOG_TEST::open_with(const std::string& device_name)
{
    DIALOG_ARGS args;
    args.device_name = device_name;
    return open(args);
}

void DIALOG_TEST::show_dialog()
{
    m_dlg->show();
    m_dlg->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dlg.get()));
    log().clear();
}

QSortFilterProxyModel& DIALOG_TEST::proxy() const
{
    auto* const model = qobject_cast<QSortFilterProxyModel*>(table().model());
    if (model == nullptr)
        qFatal("the device table shows no proxy model");
    return *model;
}

QStandardItemModel& DIALOG_TEST::device_model() const
{
    auto* const model = qobject_cast<QStandardItemModel*>(proxy().sourceModel());
    if (model == nullptr)
        qFatal("the proxy has no device model");
    return *model;
}

GPFQ_OPERATION_TAB_WIDGET& DIALOG_TEST::page(int operation) const
{
    auto* const found = qobject_cast<GPFQ_OPERATION_TAB_WIDGET*>(tabs().widget(operation + 1));
    if (found == nullptr)
        qFatal("no operation page %d", operation);
    return *found;
}

QStringList DIALOG_TEST::shown_rows() const
{
    QStringList rows;
    for (int row = 0; row < proxy().rowCount(); ++row)
        rows.append(proxy().index(row, 0).data().toString());
    return rows;
}

QStringList DIALOG_TEST::all_rows() const
{
    QStringList rows;
    for (int row = 0; row < device_model().rowCount(); ++row)
        rows.append(device_model().item(row)->text());
    return rows;
}

QStringList DIALOG_TEST::items(const char* combo_name) const
{
    const QComboBox& box = combo(combo_name);
    QStringList texts;
    for (int index = 0; index < box.count(); ++index)
        texts.append(box.itemText(index));
    return texts;
}

QString DIALOG_TEST::current_row() const
{
    const QModelIndex index = table().currentIndex();
    return index.isValid() ? index.data().toString() : QString();
}

void DIALOG_TEST::pick(const TEXT& name)
{
    const int row = shown_rows().indexOf(name.value);
    QVERIFY2(row >= 0, name.value.toLocal8Bit().constData());
    table().selectRow(row);
}

void DIALOG_TEST::type_in(const char* edit_name, const TEXT& text)
{
    edit(edit_name).setText(text.value);
}

void DIALOG_TEST::enter(const char* edit_name, const TEXT& text)
{
    type_in(edit_name, text);
    QTest::keyClick(&edit(edit_name), Qt::Key_Return);
}

QString DIALOG_TEST::text(const char* name) const
{
    const auto* const box = qobject_cast<const QComboBox*>(&widget(name));
    return box != nullptr ? box->currentText() : edit(name).text();
}

void DIALOG_TEST::choose(const char* combo_name, int data)
{
    const int index = combo(combo_name).findData(data);
    QVERIFY2(index >= 0, combo_name);
    combo(combo_name).setCurrentIndex(index);
}

void DIALOG_TEST::choose_text(const char* combo_name, const TEXT& text)
{
    const int index = items(combo_name).indexOf(text.value);
    QVERIFY2(index >= 0, combo_name);
    combo(combo_name).setCurrentIndex(index);
}

bool DIALOG_TEST::apply()
{
    bool applied = false;
    QMetaObject::invokeMethod(m_dlg.get(), "on_apply_clicked", Qt::DirectConnection, Q_RETURN_ARG(bool, applied));
    return applied;
}

MGR_DOUBLE& DIALOG_TEST::switch_manager()
{
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    world().active = &other;
    return other;
}

void DIALOG_TEST::run(const char* slot)
{
    QVERIFY2(QMetaObject::invokeMethod(m_dlg.get(), slot, Qt::DirectConnection), slot);
}

QStringList DIALOG_TEST::page_flow(int operation) const
{
    QStringList labels;
    const QList<GFPDB_ACTION*> actions = page(operation).get_flow();
    for (const GFPDB_ACTION* action : actions)
        labels.append(dynamic_cast<const ACTION_DOUBLE&>(*action).label());
    return labels;
}

QStringList DIALOG_TEST::page_flows() const
{
    QStringList labels;
    for (int operation = 0; operation < 5; ++operation)
        labels += page_flow(operation);
    return labels;
}

bool DIALOG_TEST::page_is_editable(int operation) const
{
    for (const QGraphicsScene* scene : page(operation).findChildren<QGraphicsScene*>()) {
        if (QLatin1String(scene->metaObject()->className()) != QLatin1String("GFPQ_FLOW_SCENE"))
            continue;
        for (const QGraphicsItem* item : scene->items()) {
            if (item->flags().testFlag(QGraphicsItem::ItemIsSelectable))
                return true;
        }
    }
    return false;
}

QList<bool> DIALOG_TEST::pages_enabled() const
{
    QList<bool> states;
    for (int position = 1; position < tabs().count(); ++position)
        states.append(tabs().isTabEnabled(position));
    return states;
}

QStringList DIALOG_TEST::calls() const
{
    return log().calls_without(READING);
}
