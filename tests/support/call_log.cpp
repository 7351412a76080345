// SPDX-License-Identifier: MIT
#include "call_log.h"

CALL_LOG& CALL_LOG::instance()
{
    static CALL_LOG log;
    return log;
}

void CALL_LOG::record(const QString& object, const QString& function, QStringList arguments)
{
    arguments.removeAll(QString());
    const QString call = object + QLatin1Char('.') + function + QLatin1Char('(') + arguments.join(QLatin1String(", ")) +
                         QLatin1Char(')');
    m_calls.append(call);
    m_functions.append(function);
    const auto found = m_hooks.find(function);
    if (found == m_hooks.end())
        return;
    const std::vector<HOOK> hooks = found->second; // a hook may add hooks
    for (const HOOK& hook : hooks)
        hook(call);
}

QStringList CALL_LOG::calls_of(const QStringList& functions) const
{
    QStringList result;
    for (int index = 0; index < m_calls.size(); ++index) {
        if (functions.contains(m_functions.at(index)))
            result.append(m_calls.at(index));
    }
    return result;
}

QStringList CALL_LOG::calls_without(const QStringList& functions) const
{
    QStringList result;
    for (int index = 0; index < m_calls.size(); ++index) {
        if (!functions.contains(m_functions.at(index)))
            result.append(m_calls.at(index));
    }
    return result;
}

int CALL_LOG::count(const QString& function) const
{
    return calls_of({function}).size();
}

void CALL_LOG::on_call(const QString& function, HOOK hook)
{
    m_hooks[function].push_back(std::move(hook));
}

void CALL_LOG::clear()
{
    m_calls.clear();
    m_functions.clear();
}

void CALL_LOG::reset()
{
    m_calls.clear();
    m_functions.clear();
    m_hooks.clear();
}

QString logged(const std::string& text)
{
    return logged(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
}

QString logged(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString logged(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString logged(int value)
{
    return QString::number(value);
}

QString logged(std::int64_t value)
{
    return QString::number(value);
}
