// SPDX-License-Identifier: MIT

// Another encoding of local 8-bit texts than the UTF-8 that tests run in.
#pragma once

#include <QTextCodec>

// Local 8-bit texts are in the code page called `name` for as long as it lives.
class CODE_PAGE
{
public:
    explicit CODE_PAGE(const char* name) : m_before(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~CODE_PAGE() { QTextCodec::setCodecForLocale(m_before); }
    CODE_PAGE(const CODE_PAGE&) = delete;
    CODE_PAGE& operator=(const CODE_PAGE&) = delete;

private:
    QTextCodec* m_before;
};
