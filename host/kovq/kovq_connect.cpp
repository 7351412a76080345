// SPDX-License-Identifier: MIT
#include "kovq/kovq_connect.h"

#include "msg/msg.h"

#include <string>

namespace {

std::string object_text(const QObject* object)
{
    if (!object)
        return "null";
    const std::string name = object->objectName().toStdString();
    return object->metaObject()->className() + (name.empty() ? name : " '" + name + "'");
}

// SIGNAL() and SLOT() put one digit before the signature.
std::string signature_text(const char* signature)
{
    return signature && *signature ? signature + 1 : "no signature";
}

} // namespace

bool kovq_safe_connect(const QObject* sender, const char* signal, const QObject* receiver, const char* method,
                       Qt::ConnectionType type, const char* file, int line)
{
    if (QObject::connect(sender, signal, receiver, method, type))
        return true;
    const std::string condition = "connection of " + object_text(sender) + " " + signature_text(signal) + " to " +
                                  object_text(receiver) + " " + signature_text(method);
    MSG_INTERNAL_ERROR::report(condition.c_str(), "KOVQ", file, line);
}
