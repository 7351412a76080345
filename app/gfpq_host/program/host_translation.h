// SPDX-License-Identifier: MIT

// The language of the texts.
#pragma once

#include "text_catalogue.h"

#include <QString>
#include <QStringList>

#include <optional>

// Keeps the texts of one language in the application while it lives. Make it after the application.
class HOST_TRANSLATION
{
public:
    // Where Qt's texts are.
    static QString qt_directory();

    // Brings in the texts of `language`, of the system's language when it is empty: the host's and the flash database's
    // from the first of `directories` that has them, Qt's from `directory_of_qt`. A language that was asked for and has
    // no texts of ours is logged; the texts then stay English.
    HOST_TRANSLATION(const QString& language, const QStringList& directories, const QString& directory_of_qt);
    ~HOST_TRANSLATION();
    HOST_TRANSLATION(const HOST_TRANSLATION&) = delete;
    HOST_TRANSLATION& operator=(const HOST_TRANSLATION&) = delete;

private:
    std::optional<TEXT_CATALOGUE> m_qt_texts;
    std::optional<TEXT_CATALOGUE> m_library_texts;
    std::optional<TEXT_CATALOGUE> m_own_texts;
};
