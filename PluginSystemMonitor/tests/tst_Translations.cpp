#include "HostedPlugin.h"
#include "SystemErrorModel.h"
#include "SystemResourceModelItem.h"

#include <QFile>
#include <QLibrary>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

/// The plug-in's texts in other languages.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void sourceCatalogueIsUpToDate();
    void everyCatalogueHasTheSameTexts();
    void textsStandInTheGenericContext();
    void germanCatalogueIsFinished();
    void germanTextsKeepTheirPlaceholders();
    void pluginCarriesEveryGermanText();

    void errorNameIsGerman_data();
    void errorNameIsGerman();
    void originIsGerman();
    void titleIsGerman_data();
    void titleIsGerman();
    void textsAreEnglishWithoutATranslator();

private:
    void installGerman();

    QLibrary m_plugin{QStringLiteral(PLUGIN_FILE)};
    QTranslator m_german;
};

namespace {

const QString sourceCatalogue = QStringLiteral(TRANSLATIONS_DIRECTORY "/PluginSystemMonitor.ts");
const QString germanCatalogue = QStringLiteral(TRANSLATIONS_DIRECTORY "/PluginSystemMonitor_de.ts");

struct Message
{
    QString context;
    QString translation;
    QString state; ///< "unfinished" and the like; empty for a finished one
};

using Catalogue = QMap<QString, Message>; ///< by source text

Catalogue readCatalogue(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(fileName));

    Catalogue catalogue;
    QString context;
    QString source;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.name() == "source"_L1) {
            source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            const QString state = xml.attributes().value("type"_L1).toString();
            catalogue.insert(source, {context, xml.readElementText(), state});
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(fileName), qPrintable(xml.errorString()));
    return catalogue;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%\\d"_s);
    QStringList found;
    auto match = placeholder.globalMatch(text);
    while (match.hasNext())
        found.append(match.next().captured());
    found.sort();
    return found;
}

} // namespace

void tst_Translations::initTestCase()
{
    // The translations are part of the plug-in file; loading it makes them available.
    QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
    QVERIFY(m_german.load(u":/i18n/PluginSystemMonitor_de.qm"_s));
}

void tst_Translations::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_Translations::cleanup()
{
    QCoreApplication::removeTranslator(&m_german);
}

void tst_Translations::installGerman()
{
    QVERIFY(QCoreApplication::installTranslator(&m_german));
}

// Catalogues

void tst_Translations::sourceCatalogueIsUpToDate()
{
    const QTemporaryDir directory;
    const QString fresh = directory.filePath(u"fresh.ts"_s);
    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(LUPDATE),
                  {QStringLiteral(SOURCE_DIRECTORY), u"-ts"_s, fresh, u"-locations"_s, u"none"_s});
    QVERIFY(lupdate.waitForFinished());
    QVERIFY2(lupdate.exitCode() == 0, lupdate.readAll().constData());

    const Catalogue expected = readCatalogue(fresh);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(readCatalogue(sourceCatalogue).keys(), expected.keys());
}

void tst_Translations::everyCatalogueHasTheSameTexts()
{
    QCOMPARE(readCatalogue(germanCatalogue).keys(), readCatalogue(sourceCatalogue).keys());
}

void tst_Translations::textsStandInTheGenericContext()
{
    for (const QString &fileName : {sourceCatalogue, germanCatalogue}) {
        const Catalogue catalogue = readCatalogue(fileName);
        for (const Message &message : catalogue)
            QCOMPARE(message.context, u"QObject"_s);
    }
}

void tst_Translations::germanCatalogueIsFinished()
{
    const Catalogue catalogue = readCatalogue(germanCatalogue);
    for (auto message = catalogue.cbegin(); message != catalogue.cend(); ++message) {
        QVERIFY2(message->state.isEmpty(), qPrintable(message.key()));
        QVERIFY2(!message->translation.isEmpty(), qPrintable(message.key()));
    }
}

void tst_Translations::germanTextsKeepTheirPlaceholders()
{
    const Catalogue catalogue = readCatalogue(germanCatalogue);
    for (auto message = catalogue.cbegin(); message != catalogue.cend(); ++message)
        QCOMPARE(placeholders(message->translation), placeholders(message.key()));
}

void tst_Translations::pluginCarriesEveryGermanText()
{
    const Catalogue catalogue = readCatalogue(germanCatalogue);
    for (auto message = catalogue.cbegin(); message != catalogue.cend(); ++message)
        QCOMPARE(m_german.translate("QObject", message.key().toUtf8().constData()),
                 message->translation);
}

// What the user sees

void tst_Translations::errorNameIsGerman_data()
{
    QTest::addColumn<ErrorType>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("CPU") << HighCpuUsage << u"CPU-Auslastung über 90 %"_s;
    QTest::newRow("memory") << HighMemoryUsage << u"Speicherauslastung über 90 %"_s;
    QTest::newRow("network") << HighNetworkUsage << u"Netzwerkauslastung über 50 %"_s;
    QTest::newRow("camera") << CameraDisconnected << u"Kamera getrennt"_s;
    QTest::newRow("station") << StationDisconnected << u"Station getrennt"_s;
    QTest::newRow("volume") << VolumeDisconnected << u"Volume getrennt"_s;
    QTest::newRow("reserved") << Reserved << QString();
    QTest::newRow("recording days")
        << InsufficientRecordingDays << u"Zu wenige Aufzeichnungstage"_s;
}

void tst_Translations::errorNameIsGerman()
{
    QFETCH(const ErrorType, type);
    QFETCH(const QString, name);
    installGerman();
    HostedPlugin hosted;
    QCOMPARE(hosted.plugin.getErrorName(type), name);
    hosted.plugin.addSystemError(u"st1"_s, type, QString(), QString());
    QCOMPARE(hosted.plugin.errorModel->index(0, 0).data(SystemErrorModel::ErrorNameRole),
             QVariant(name));
}

void tst_Translations::originIsGerman()
{
    installGerman();
    HostedPlugin hosted;
    QStandardItem *station = hosted.topologyModel.addStation(u"st1"_s, u"Foyer"_s);
    TopologyModel::addCamera(station, u"st1/cam1"_s, u"Tür"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(SystemCategory, u"st1"_s), u"Station: Foyer"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(CameraCategory, u"st1/cam1"_s),
             u"Station: Foyer / Kamera: Tür"_s);
    hosted.plugin.addStorageError(u"st1"_s, InsufficientRecordingDays, u"Türen"_s, u"g1"_s);
    QCOMPARE(hosted.plugin.errorModel->index(0, 0).data(SystemErrorModel::TriggerDeviceNameRole),
             QVariant(u"Station: Foyer / Archiv: Türen"_s));
}

void tst_Translations::titleIsGerman_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("title");
    QTest::newRow("CPU") << 0 << u"CPU-Auslastung"_s;
    QTest::newRow("memory") << 1 << u"Speicherauslastung"_s;
    QTest::newRow("network") << 2 << u"Netzwerkauslastung"_s;
}

void tst_Translations::titleIsGerman()
{
    QFETCH(const int, row);
    QFETCH(const QString, title);
    installGerman();
    HostedPlugin hosted;
    const auto *model = qobject_cast<QAbstractItemModel *>(hosted.plugin.getSystemResourceModel());
    QCOMPARE(model->index(row, 0).data(SystemResourceModelItem::TitleRole), QVariant(title));
}

void tst_Translations::textsAreEnglishWithoutATranslator()
{
    HostedPlugin hosted;
    QCOMPARE(hosted.plugin.getErrorName(HighCpuUsage), u"CPU utilization over 90%"_s);
    QCOMPARE(hosted.plugin.getTriggerDeviceName(CameraCategory, u"st1/cam1"_s),
             u"Station:  / Camera: N/A"_s);
}

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
