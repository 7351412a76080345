// SPDX-License-Identifier: MIT

// Prints what a second program finds in a flash database, through the library, as one JSON object:
//
//   database_reader DIRECTORY FAMILY SCHEME [NAME...]
//
// "devices" and "templates": the names stored there; "defaults": the text of a new action of each type; "records": for
// each NAME its properties by number, "user_defined", and "flows": for "single" and "quad" the texts of the actions of
// the five operations, as a flow chart shows them. A NAME that nobody knows is null.
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

QString text_of(const std::string& text)
{
    return QString::fromStdString(text);
}

QJsonArray texts_of(const std::vector<std::string>& texts)
{
    QJsonArray array;
    for (const std::string& text : texts)
        array.append(text_of(text));
    return array;
}

// One line a property; the loop marker is a shape in a chart, no text.
QString action_text(const GFPDB_ACTION& action)
{
    QStringList lines;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        if (property != GFPDB_CUSTOM_LOOP_MARKER)
            lines.append(text_of(action.get_property_label(property)) + QLatin1Char(' ') +
                         text_of(action.get_property_value(property)));
    }
    return lines.join(QLatin1Char('\n'));
}

QJsonArray flow_of(const GFPDB_FLASH& flash, bool variant)
{
    QJsonArray operations;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        QJsonArray texts;
        const GFPDB_OPERATION* operation = flash.find_operation(kind, variant);
        if (operation && operation->get_actions()) {
            for (const GFPDB_ACTION* action : *operation->get_actions())
                texts.append(action_text(*action));
        }
        operations.append(texts);
    }
    return operations;
}

QJsonValue record_of(const GFPDB_FLASH* flash)
{
    if (!flash)
        return QJsonValue::Null;
    QJsonObject record;
    for (int property = GFPDB_FLASH_NAME; property <= GFPDB_FLASH_FLOW_TEMPLATE; ++property)
        record.insert(QString::number(property),
                      text_of(flash->get_string_property(static_cast<GFPDB_FLASH_PROPERTY>(property))));
    record.insert(QStringLiteral("user_defined"), flash->is_user_defined());
    record.insert(QStringLiteral("flows"), QJsonObject{{QStringLiteral("single"), flow_of(*flash, false)},
                                                       {QStringLiteral("quad"), flow_of(*flash, true)}});
    return record;
}

QJsonArray defaults_of(GFPDB_MGR& mgr)
{
    QJsonArray defaults;
    for (int type = 0; type < GFPDB_ACT_TYPE_COUNT; ++type) {
        const std::unique_ptr<GFPDB_ACTION> action(mgr.create_action(static_cast<GFPDB_ACT_TYPE>(type)));
        defaults.append(action_text(*action));
    }
    return defaults;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4)
        return EXIT_FAILURE;
    const int family = arguments[2].toInt();
    const int scheme = arguments[3].toInt();
    GFPDB_MGR::set_db_custom_dir(arguments[1].toStdString() + "/");
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(scheme));
    GFPDB_MGR* mgr = GFPDB_HELPER::get_active_flash_manager(true);
    mgr->set_device_family(family);
    mgr->set_config_scheme(scheme);

    std::vector<std::string> names;
    QJsonObject records;
    for (const QString& name : arguments.mid(4))
        records.insert(name, record_of(mgr->find_flash(name.toStdString(), true)));
    const QJsonObject result = {
        {QStringLiteral("devices"), texts_of(mgr->get_custom_flash_names(names, family, scheme, 0))},
        {QStringLiteral("templates"), texts_of(mgr->get_user_template_list(names))},
        {QStringLiteral("defaults"), defaults_of(*mgr)},
        {QStringLiteral("records"), records}};
    std::printf("%s\n", QJsonDocument(result).toJson(QJsonDocument::Compact).constData());
    return EXIT_SUCCESS;
}
