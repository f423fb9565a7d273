#ifndef TRANSLATIONS_H
#define TRANSLATIONS_H

#include <QSet>
#include <QString>

#include <memory>
#include <vector>

class QTranslator;

/// The catalogues of one language, from wherever a resource offers one: ":/i18n/Name_language.qm".
class Translations
{
public:
    /// Throws InputError when the Workbench has no texts in the language.
    explicit Translations(QString language);
    ~Translations();

    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

    /// Installs the catalogues that have come since the last call, for example with a library.
    void installNew();

private:
    const QString m_language;
    QSet<QString> m_installed; // file names
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

#endif
