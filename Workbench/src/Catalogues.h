#ifndef CATALOGUES_H
#define CATALOGUES_H

#include <QSet>
#include <QString>

#include <memory>
#include <vector>

class QTranslator;

/// The catalogues of one language, from wherever a resource offers one: ":/i18n/Name_language.qm",
/// and Qt's own, if it is installed.
class Catalogues
{
public:
    /// Throws InputError when the Workbench has no texts in the language.
    explicit Catalogues(QString language);
    ~Catalogues();

    Catalogues(const Catalogues &) = delete;
    Catalogues &operator=(const Catalogues &) = delete;

    /// Installs the catalogues that have come since the last call, for example with a library.
    void installNew();

private:
    void install(const QString &folder, const QString &name);

    const QString m_language;
    QSet<QString> m_installed; // file names
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

#endif
