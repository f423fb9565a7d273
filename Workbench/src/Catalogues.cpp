#include "Catalogues.h"

#include "InputError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <utility>

namespace {

const QString Folder = QStringLiteral(":/i18n");
const QString SourceLanguage = QStringLiteral("en");

bool isOffered(const QString &language)
{
    return language == SourceLanguage
           || QFileInfo::exists(Folder + QStringLiteral("/Workbench_%1.qm").arg(language));
}

} // namespace

Catalogues::Catalogues(QString language)
    : m_language(std::move(language))
{
    if (!isOffered(m_language))
        throw InputError(QCoreApplication::translate("Catalogues",
                                                     "--language: expected en or de, found \"%1\".")
                             .arg(m_language));
    if (m_language != SourceLanguage)
        QLocale::setDefault(QLocale(m_language));
    install(QLibraryInfo::path(QLibraryInfo::TranslationsPath),
            QStringLiteral("qtbase_%1.qm").arg(m_language));
    installNew();
}

Catalogues::~Catalogues() = default;

void Catalogues::installNew()
{
    const QStringList pattern{QStringLiteral("*_%1.qm").arg(m_language)};
    const QStringList names = QDir(Folder).entryList(pattern);
    for (const QString &name : names)
        install(Folder, name);
}

void Catalogues::install(const QString &folder, const QString &name)
{
    if (m_installed.contains(name))
        return;
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(folder + u'/' + name))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
    m_installed.insert(name);
}
