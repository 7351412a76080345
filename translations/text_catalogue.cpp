// SPDX-License-Identifier: MIT
#include "text_catalogue.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr const char* DIRECTORY_VARIABLE = "GFPQ_TRANSLATIONS";
constexpr QLatin1String SOURCE_LANGUAGE("en");
constexpr QLatin1Char TAG_SEPARATOR('-');
constexpr QLatin1Char FILE_NAME_SEPARATOR('_');

bool is_source_language(const QString& tag)
{
    return tag.section(TAG_SEPARATOR, 0, 0) == SOURCE_LANGUAGE;
}

// Fills `translator` from the first of the directories that has a catalogue for the language tag or what it belongs to.
bool load(QTranslator& translator, const QString& name, const QString& tag, const QStringList& directories)
{
    QString language = tag;
    language.replace(TAG_SEPARATOR, FILE_NAME_SEPARATOR);
    for (const QString& directory : directories) {
        if (translator.load(name + FILE_NAME_SEPARATOR + language, directory, QString(FILE_NAME_SEPARATOR)))
            return true;
    }
    return false;
}

} // namespace

TEXT_CATALOGUE::TEXT_CATALOGUE(const QString& name, const QStringList& directories)
{
    QStringList places = directories;
    const QString tried_out = qEnvironmentVariable(DIRECTORY_VARIABLE);
    if (!tried_out.isEmpty())
        places.prepend(tried_out);

    const QStringList languages = QLocale().uiLanguages();
    for (const QString& tag : languages) {
        if (load(m_translator, name, tag, places)) {
            m_is_installed = QCoreApplication::installTranslator(&m_translator);
            return;
        }
        if (is_source_language(tag))
            return;
    }
}

TEXT_CATALOGUE::~TEXT_CATALOGUE()
{
    if (m_is_installed)
        QCoreApplication::removeTranslator(&m_translator);
}
