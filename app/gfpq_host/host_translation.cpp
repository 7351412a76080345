#include "host_translation.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(HOST_LOG, "host.app")

const QString OWN_FILE = QStringLiteral("gfpq");
const QString QT_FILE = QStringLiteral("qtbase");
const QString SEPARATOR = QStringLiteral("_");

// English is what the sources are written in.
bool needs_translation(const QLocale& locale)
{
    return locale.language() != QLocale::English && locale.language() != QLocale::C;
}

bool load_from_first(QTranslator& translator, const QLocale& locale, const QStringList& directories)
{
    for (const QString& directory : directories) {
        if (translator.load(locale, OWN_FILE, SEPARATOR, directory))
            return true;
    }
    return false;
}

} // namespace

QStringList HOST_TRANSLATION::installed_directories(const QString& program_directory)
{
    return {QDir::cleanPath(QDir(program_directory).absoluteFilePath(QStringLiteral("../share/gfpq/translations")))};
}

QString HOST_TRANSLATION::qt_directory()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}

HOST_TRANSLATION::HOST_TRANSLATION(const QString& language, const QStringList& directories,
                                   const QString& directory_of_qt)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale);
    if (!needs_translation(locale))
        return;
    if (m_qt_texts.load(locale, QT_FILE, SEPARATOR, directory_of_qt))
        QCoreApplication::installTranslator(&m_qt_texts);
    if (load_from_first(m_own_texts, locale, directories))
        QCoreApplication::installTranslator(&m_own_texts);
    else if (!language.isEmpty())
        qCWarning(HOST_LOG, "There are no texts in the language \"%s\"", qUtf8Printable(language));
}

// A translator leaves the application when it is destroyed.
HOST_TRANSLATION::~HOST_TRANSLATION() = default;
