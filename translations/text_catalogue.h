// SPDX-License-Identifier: MIT

// The texts of a program or module in the user's language.
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

// Installs, for as long as it lives, the catalogue of `name` that goes with the application's default locale
// (QLocale()).
//
// A catalogue is a file NAME_LANGUAGE.qm. It is looked for in the directory that the environment variable
// GFPQ_TRANSLATIONS names, so that a translator can try one without a rebuild, then in `directories`. Of the locale's
// user interface languages the first that has a catalogue counts; a language without one takes that of the country
// where it is at home, or its parent ("zh_HK": "zh_TW", "pt_PT": "pt_BR", "de_AT": "de"). The texts in the sources are
// English, so English ends the search.
//
// Needs a QCoreApplication while it is made. GUI thread only.
class TEXT_CATALOGUE
{
public:
    // Where the catalogues of the programs are, as seen from the directory of the programs.
    static QStringList installed_directories(const QString& program_directory);

    TEXT_CATALOGUE(const QString& name, const QStringList& directories);
    ~TEXT_CATALOGUE();
    TEXT_CATALOGUE(const TEXT_CATALOGUE&) = delete;
    TEXT_CATALOGUE& operator=(const TEXT_CATALOGUE&) = delete;

    // False when the texts of the sources are shown.
    bool is_installed() const { return m_is_installed; }

private:
    QTranslator m_translator;
    bool m_is_installed = false;
};
