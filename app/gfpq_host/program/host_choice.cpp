// SPDX-License-Identifier: MIT
#include "program/host_choice.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>

namespace {

const QString FAMILY_KEY = QStringLiteral("choice/family");
const QString SCHEME_KEY = QStringLiteral("choice/config_scheme");
const QString DEVICE_KEY = QStringLiteral("choice/device_name");

QString device_text(const HOST_CHOICE& choice)
{
    return QString::fromLocal8Bit(QByteArray::fromStdString(choice.device_name));
}

// `text` as a JSON string with its quotes.
QByteArray json_string(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

// The number under `key`, or `otherwise` when it is none or outside `first` to `last`.
int number_between(const QSettings& settings, const QString& key, int first, int last, int otherwise)
{
    bool is_number = false;
    const int number = settings.value(key).toInt(&is_number);
    return is_number && number >= first && number <= last ? number : otherwise;
}

} // namespace

QByteArray choice_to_json(const HOST_CHOICE& choice)
{
    return "{\"family\":" + QByteArray::number(choice.family) +
           ",\"config_scheme\":" + QByteArray::number(choice.config_scheme) +
           ",\"device_name\":" + json_string(device_text(choice)) + "}";
}

HOST_CHOICE load_choice(const QSettings& settings)
{
    HOST_CHOICE choice;
    choice.family = number_between(settings, FAMILY_KEY, DEV_FAMILY_FIRST, DEV_FAMILY_LAST, choice.family);
    choice.config_scheme = number_between(settings, SCHEME_KEY, 0, PGMIO_CONFIG_SCHEME_COUNT - 1, choice.config_scheme);
    choice.device_name = settings.value(DEVICE_KEY).toString().toLocal8Bit().toStdString();
    return choice;
}

void store_choice(const HOST_CHOICE& choice, QSettings& settings)
{
    settings.setValue(FAMILY_KEY, choice.family);
    settings.setValue(SCHEME_KEY, choice.config_scheme);
    settings.setValue(DEVICE_KEY, device_text(choice));
}
