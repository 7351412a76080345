// SPDX-License-Identifier: MIT

// A translator that puts every text of one context in brackets, and leaves all others as they are.
#pragma once

#include <QCoreApplication>
#include <QTranslator>

// Installed while it lives.
class MARKING_TRANSLATOR : public QTranslator
{
public:
    explicit MARKING_TRANSLATOR(const char* context) : m_context(context) { QCoreApplication::installTranslator(this); }
    ~MARKING_TRANSLATOR() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return m_context == context ? QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']') : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const QByteArray m_context;
};
