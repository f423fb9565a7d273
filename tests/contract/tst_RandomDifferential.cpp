#include "ModelRoles.h"
#include "RandomDriver.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// The loaded plug-in and a literal model of its rules live through the same random events and are
/// compared after each. Others change their models meanwhile, and views come and go.
///
/// RANDOM_SEEDS sets how many seeds are run, RANDOM_SEED runs a single one and prints its steps.
class tst_RandomDifferential : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void pluginFollowsTheRules_data();
    void pluginFollowsTheRules();
};

namespace {

constexpr int DefaultSeeds = 40;
constexpr int Steps = 400;

struct Moment
{
    qint64 earliest;
    qint64 latest;
};

QStringList expectedErrors(const ReferenceMonitor &reference)
{
    QStringList rows;
    for (const ReferenceError &error : reference.errors) {
        rows.append(printedError(ErrorValues{error.key, error.stationID, error.deviceID, error.type,
                                             error.category, error.name, error.origin}));
    }
    return rows;
}

// Whether every error's time lies within the step that raised it.
bool timesFit(TestHost &host, const ReferenceMonitor &reference, const QList<Moment> &moments)
{
    for (int row = 0; row < reference.errors.size(); ++row) {
        const QVariant time = host.error(row, ErrorRole::Timestamp);
        const Moment moment = moments.at(reference.errors[row].step);
        if (time.metaType() != QMetaType::fromType<qint64>() || time.toLongLong() < moment.earliest
            || time.toLongLong() > moment.latest)
            return false;
    }
    return true;
}

// Equal in type as well, all the way down.
bool isIdentical(const QVariant &left, const QVariant &right)
{
    if (left.metaType() != right.metaType())
        return false;
    if (left.typeId() != QMetaType::QVariantList)
        return left == right;
    const QVariantList leftList = left.toList();
    const QVariantList rightList = right.toList();
    return std::equal(
        leftList.cbegin(), leftList.cend(), rightList.cbegin(), rightList.cend(),
        [](const QVariant &one, const QVariant &other) { return isIdentical(one, other); });
}

bool isIdentical(const QModelIndex &index, const ReferenceResource &expected)
{
    return isIdentical(index.data(ResourceRole::Type), expected.type)
           && isIdentical(index.data(ResourceRole::Title), expected.title)
           && isIdentical(index.data(ResourceRole::Subtitle), expected.subtitle)
           && isIdentical(index.data(ResourceRole::Threshold), expected.threshold)
           && isIdentical(index.data(ResourceRole::UsageList), expected.history)
           && isIdentical(index.data(ResourceRole::Bandwidth), expected.bandwidth);
}

bool resourcesFit(TestHost &host, const ReferenceMonitor &reference)
{
    const QAbstractItemModel &model = *host.resources();
    if (model.rowCount() != reference.resources.size())
        return false;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (!isIdentical(model.index(row, 0), reference.resources[row]))
            return false;
    }
    return true;
}

QStringList expectedKeys(const ReferenceMonitor &reference, const DrivenView &view)
{
    QStringList keys;
    for (const ReferenceError &error : reference.errors) {
        const bool hasCategory = (error.category & view.mask) != 0;
        const bool hasText = error.name.contains(view.text, Qt::CaseInsensitive)
                             || error.origin.contains(view.text, Qt::CaseInsensitive);
        if (hasCategory && hasText && error.stationID.contains(view.stationID))
            keys.append(error.key);
    }
    keys.sort();
    return keys;
}

// Errors of the same millisecond may come in any order.
bool viewFits(const ReferenceMonitor &reference, const DrivenView &view)
{
    QStringList keys = errorKeys(*view.proxy);
    keys.sort();
    if (keys != expectedKeys(reference, view))
        return false;
    for (int row = 1; row < view.proxy->rowCount(); ++row) {
        const auto time = [&view](int of) {
            return view.proxy->index(of, 0).data(ErrorRole::Timestamp).toLongLong();
        };
        if (time(row - 1) < time(row))
            return false;
    }
    return true;
}

// A look at both sides, when they differ.
QString sideBySide(const char *subject, const QStringList &actual, const QStringList &expected)
{
    return QString::fromLatin1(subject) + u"\n  plug-in:\n    "_s + actual.join(u"\n    "_s)
           + u"\n  rules:\n    "_s + expected.join(u"\n    "_s);
}

bool commandsFit(const FakeHost &framework)
{
    return framework.allCallsHadTheHandle()
           && std::all_of(framework.commands().cbegin(), framework.commands().cend(),
                          [](const SentCommand &command) {
                              const bool hasContext =
                                  command.command == u"isSupportSystemMonitor"_s;
                              return command.senderID == PluginID::SystemMonitor
                                     && command.flag == 0
                                     && (command.context != nullptr) == hasContext;
                          });
}

// Compares everything there is to see, and tells what does not fit; empty when all does.
QString difference(RandomDriver &driver, const QList<Moment> &moments)
{
    TestHost &host = driver.host();
    ReferenceMonitor &reference = driver.reference();
    const QStringList lines = host.log.take();
    const QStringList expectedLines = std::exchange(reference.log, {});
    if (lines != expectedLines)
        return sideBySide("log", lines, expectedLines);
    if (host.errorRows() != expectedErrors(reference))
        return sideBySide("errors", host.errorRows(), expectedErrors(reference));
    if (!timesFit(host, reference, moments))
        return u"times of the errors"_s;
    if (host.object()->property("stationErrorList") != QVariant(reference.stationErrors))
        return u"counts of the stations"_s;
    if (host.object()->property("focusStationResource") != QVariant(reference.focus))
        return u"station in focus"_s;
    if (!resourcesFit(host, reference))
        return u"resources\n"_s + host.resourceRows().join(u'\n');
    for (const DrivenView &view : driver.views()) {
        if (!viewFits(reference, view))
            return sideBySide("view", errorKeys(*view.proxy), expectedKeys(reference, view));
    }
    return commandsFit(host.framework) ? QString() : u"commands"_s;
}

} // namespace

void tst_RandomDifferential::initTestCase()
{
    qputenv("TZ", "Europe/Berlin");
}

void tst_RandomDifferential::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_RandomDifferential::pluginFollowsTheRules_data()
{
    QTest::addColumn<quint32>("seed");
    bool isSingle = false;
    const int single = qEnvironmentVariableIntValue("RANDOM_SEED", &isSingle);
    bool hasCount = false;
    const int count = qEnvironmentVariableIntValue("RANDOM_SEEDS", &hasCount);
    const int first = isSingle ? single : 1;
    const int last = isSingle ? single : hasCount ? count : DefaultSeeds;
    for (int seed = first; seed <= last; ++seed)
        QTest::addRow("seed %d", seed) << static_cast<quint32>(seed);
}

void tst_RandomDifferential::pluginFollowsTheRules()
{
    QFETCH(const quint32, seed);
    const bool isVerbose = qEnvironmentVariableIsSet("RANDOM_SEED");
    RandomDriver driver(seed);
    QList<Moment> moments{{0, 0}};
    for (int step = 1; step <= Steps; ++step) {
        const qint64 earliest = QDateTime::currentMSecsSinceEpoch();
        const QString what = u"step %1, "_s.arg(step) + driver.step();
        moments.append({earliest, QDateTime::currentMSecsSinceEpoch()});
        if (isVerbose)
            qInfo("%s", qUtf8Printable(what));
        const QString found = difference(driver, moments);
        QVERIFY2(found.isEmpty(), qUtf8Printable(what + u'\n' + found));
    }
    driver.finish();
}

QTEST_GUILESS_MAIN(tst_RandomDifferential)
#include "tst_RandomDifferential.moc"
