// SPDX-License-Identifier: MIT
#include "model/gfpdb_json.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_action_model.h"
#include "model/gfpdb_operation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString OPERATIONS = QStringLiteral("operations");
const QString KIND = QStringLiteral("kind");
const QString ACTIONS = QStringLiteral("actions");
const QString TYPE = QStringLiteral("type");
const QString VALUES = QStringLiteral("values");
constexpr int NO_NUMBER = -1;
// Qt's reader drops the mark at the beginning of a string, unless it is escaped.
const QByteArray BYTE_ORDER_MARK = QByteArrayLiteral("\xEF\xBB\xBF");
const QByteArray ESCAPED_BYTE_ORDER_MARK = QByteArrayLiteral("\\ufeff");

using OPERATION_LIST = std::vector<std::unique_ptr<GFPDB_OPERATION>>;

std::optional<QJsonObject> action_to_json(const GFPDB_ACTION& action)
{
    QJsonObject values;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        const std::string value = action.get_property_value(property);
        const QString text = gfpdb_from_utf8(value);
        if (gfpdb_to_utf8(text) != value)
            return std::nullopt;
        values.insert(QString::number(property), text);
    }
    return QJsonObject{{TYPE, static_cast<int>(action.get_action_type())}, {VALUES, values}};
}

std::optional<QJsonObject> operation_to_json(const GFPDB_OPERATION& operation)
{
    QJsonArray actions;
    if (const std::vector<GFPDB_ACTION*>* list = operation.get_actions()) {
        for (const GFPDB_ACTION* action : *list) {
            const std::optional<QJsonObject> object = action_to_json(*action);
            if (!object)
                return std::nullopt;
            actions.append(*object);
        }
    }
    return QJsonObject{{KIND, operation.m_kind}, {ACTIONS, actions}};
}

// Null when `object` is no action.
std::unique_ptr<GFPDB_ACTION> action_from_json(const QJsonObject& object)
{
    const int type = object.value(TYPE).toInt(NO_NUMBER);
    std::unique_ptr<GFPDB_ACTION> action(gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type)));
    if (!action)
        return action;
    const QJsonObject values = object.value(VALUES).toObject();
    for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list()) {
        const QJsonValue value = values.value(QString::number(property));
        if (value.isString())
            action->set_property_value(property, gfpdb_to_utf8(value.toString()));
    }
    return action;
}

// Null when `object` is no operation.
std::unique_ptr<GFPDB_OPERATION> operation_from_json(const QJsonObject& object)
{
    std::unique_ptr<GFPDB_OPERATION> operation(gfpdb_make_operation(object.value(KIND).toInt(NO_NUMBER)));
    if (!operation || !object.value(ACTIONS).isArray())
        return nullptr;
    const QJsonArray actions = object.value(ACTIONS).toArray();
    for (const QJsonValue value : actions) {
        std::unique_ptr<GFPDB_ACTION> action = action_from_json(value.toObject());
        if (!action)
            return nullptr;
        operation->add_action(action.release());
    }
    return operation;
}

} // namespace

std::optional<std::string> gfpdb_flows_to_json(const std::vector<GFPDB_OPERATION*>* operations)
{
    if (operations == nullptr || operations->empty())
        return std::string();
    QJsonArray array;
    for (const GFPDB_OPERATION* operation : *operations) {
        const std::optional<QJsonObject> object = operation_to_json(*operation);
        if (!object)
            return std::nullopt;
        array.append(*object);
    }
    QByteArray json = QJsonDocument(QJsonObject{{OPERATIONS, array}}).toJson(QJsonDocument::Compact);
    return json.replace(BYTE_ORDER_MARK, ESCAPED_BYTE_ORDER_MARK).toStdString();
}

// A quote within a text is escaped, so this can only be the key of an action.
bool gfpdb_flows_have_actions(const std::string& json)
{
    return json.find("\"" + TYPE.toStdString() + "\":") != std::string::npos;
}

std::optional<OPERATION_LIST> gfpdb_flows_from_json(const std::string& json)
{
    OPERATION_LIST operations;
    if (json.empty())
        return operations;
    const QJsonValue list = QJsonDocument::fromJson(QByteArray::fromStdString(json)).object().value(OPERATIONS);
    if (!list.isArray())
        return std::nullopt;
    const QJsonArray array = list.toArray();
    for (const QJsonValue value : array) {
        std::unique_ptr<GFPDB_OPERATION> operation = operation_from_json(value.toObject());
        if (!operation)
            return std::nullopt;
        operations.push_back(std::move(operation));
    }
    return operations;
}
