// SPDX-License-Identifier: MIT
#include "program/host_translation.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(HOST_LOG, "host.app")

const QString OWN_FILE = QStringLiteral("gfpq_host");
const QString LIBRARY_FILE = QStringLiteral("gfpdb");
const QString QT_FILE = QStringLiteral("qtbase");

// What Qt's buttons say. Its own catalogues are a package that need not be installed; then these are used.
[[maybe_unused]] constexpr const char* BUTTONS_OF_QT[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"), QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"), QT_TRANSLATE_NOOP("QPlatformTheme", "Save")};

// English is what the sources are written in.
bool needs_translation(const QLocale& locale)
{
    return locale.language() != QLocale::English && locale.language() != QLocale::C;
}

} // namespace

QString HOST_TRANSLATION::qt_directory()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

HOST_TRANSLATION::HOST_TRANSLATION(const QString& language, const QStringList& directories,
                                   const QString& directory_of_qt)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale);
    m_qt_texts.emplace(QT_FILE, QStringList(directory_of_qt));
    m_library_texts.emplace(LIBRARY_FILE, directories);
    m_own_texts.emplace(OWN_FILE, directories);
    if (needs_translation(locale) && !m_own_texts->is_installed() && !language.isEmpty())
        qCWarning(HOST_LOG, "There are no texts in the language \"%s\"", qUtf8Printable(language));
}

HOST_TRANSLATION::~HOST_TRANSLATION() = default;
