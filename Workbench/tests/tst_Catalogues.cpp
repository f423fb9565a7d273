#include "Catalogues.h"

#include "InputFailure.h"
#include "Options.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

class tst_Catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void englishIsTheSource();
    void germanIsInstalled();
    void wordsOfQtAreGermanToo();
    void installsEachCatalogueOnce();
    void unknownLanguagesAreRefused_data();
    void unknownLanguagesAreRefused();
    void germanTextsHaveThePlacesOfTheirSources();
};

namespace {

QString summary()
{
    return QCoreApplication::translate("ConsoleReport", "Summary");
}

} // namespace

void tst_Catalogues::englishIsTheSource()
{
    const Catalogues catalogues(QStringLiteral("en"));
    QCOMPARE(summary(), QStringLiteral("Summary"));
}

void tst_Catalogues::germanIsInstalled()
{
    const QLocale before;
    {
        const Catalogues catalogues(QStringLiteral("de"));
        QCOMPARE(summary(), QStringLiteral("Zusammenfassung"));
        QCOMPARE(QLocale().language(), QLocale::German);
        QVERIFY(optionsHelp().contains(QStringLiteral("Rückgabewerte")));
    }
    QCOMPARE(summary(), QStringLiteral("Summary"));
    QLocale::setDefault(before);
}

void tst_Catalogues::wordsOfQtAreGermanToo()
{
    const QLocale before;
    {
        const Catalogues catalogues(QStringLiteral("de"));
        QCOMPARE(inputFailure([] {
                     parseOptions({QStringLiteral("workbench"), QStringLiteral("--fast")});
                 }),
                 QStringLiteral("Unbekannte Option 'fast'."));
    }
    QLocale::setDefault(before);
}

void tst_Catalogues::installsEachCatalogueOnce()
{
    const QLocale before;
    Catalogues catalogues(QStringLiteral("de"));
    catalogues.installNew();
    QCOMPARE(summary(), QStringLiteral("Zusammenfassung"));
    QLocale::setDefault(before);
}

void tst_Catalogues::unknownLanguagesAreRefused_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("none") << QString();
    QTest::newRow("without a catalogue") << QStringLiteral("fr");
    QTest::newRow("pattern") << QStringLiteral("*");
    QTest::newRow("path") << QStringLiteral("../de");
}

void tst_Catalogues::unknownLanguagesAreRefused()
{
    QFETCH(QString, language);
    QCOMPARE(inputFailure([&language] { const Catalogues catalogues(language); }),
             QStringLiteral("--language: expected en or de, found \"%1\".").arg(language));
}

void tst_Catalogues::germanTextsHaveThePlacesOfTheirSources()
{
    QFile file(QFINDTESTDATA("../i18n/Workbench_de.ts"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression place(QStringLiteral("%\\d"));
    const auto places = [](const QString &text) {
        QStringList found;
        auto match = place.globalMatch(text);
        while (match.hasNext())
            found.append(match.next().captured());
        found.sort();
        return found;
    };
    QXmlStreamReader reader(&file);
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QStringLiteral("source"))
            source = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QStringLiteral("translation"))
            QCOMPARE(places(reader.readElementText()), places(source));
    }
    QVERIFY(!source.isEmpty());
}

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_Catalogues.moc"
