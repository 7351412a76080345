// SPDX-License-Identifier: MIT
#include "text_catalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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

// What a catalogue for the language tag may be called after it, the nearest first: "zh_Hant_HK", "zh_HK", "zh_TW"
// (where the language in this script is at home) and "zh".
QStringList languages_near(const QString& tag)
{
    QString own = tag;
    own.replace(TAG_SEPARATOR, FILE_NAME_SEPARATOR);
    QStringList names{own};
    const QLocale locale(own);
    if (locale.language() != QLocale::C)
        names << locale.name() << QLocale(locale.language(), locale.script(), QLocale::AnyCountry).name();
    names.append(own.section(FILE_NAME_SEPARATOR, 0, 0));
    return names;
}

// Fills `translator` from the first of the directories that has a catalogue for the language tag or what is near it.
bool load(QTranslator& translator, const QString& name, const QString& tag, const QStringList& directories)
{
    const QStringList languages = languages_near(tag);
    for (const QString& directory : directories) {
        for (const QString& language : languages) {
            const QString file = directory + QStringLiteral("/%1_%2.qm").arg(name, language);
            if (QFile::exists(file) && translator.load(file))
                return true;
        }
    }
    return false;
}

} // namespace

QStringList TEXT_CATALOGUE::installed_directories(const QString& program_directory)
{
    return {QDir::cleanPath(QDir(program_directory).absoluteFilePath(QStringLiteral("../share/gfpq/translations")))};
}

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
