#include "TopologyJournal.h"

#include "TestSite.h"
#include "TopologyPlugin.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QTest>

namespace {

// What the roles of a node say.
QString described(const QModelIndex &node)
{
    QStringList fields;
    for (const int role : {TopologyRole::NodeId, TopologyRole::DisplayName, TopologyRole::Type,
                           TopologyRole::Connected})
        fields.append(node.data(role).toString());
    fields.append(
        node.data(TopologyRole::NameMap).toMap().value(QStringLiteral("nameRole")).toString());
    return fields.join(u'|');
}

// Every node as described, one a line, those below indented.
void describe(const QAbstractItemModel &model, const QModelIndex &parent, const QString &indent,
              QStringList &lines)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        lines.append(indent + described(index));
        describe(model, index, indent + u' ', lines);
    }
}

QStringList linesOf(const QAbstractItemModel &model)
{
    QStringList lines;
    describe(model, {}, {}, lines);
    return lines;
}

QJsonObject parsed(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

} // namespace

class tst_TopologyJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void copyFollowsEveryChange();
    void modelThatIsFilledAlreadyIsWritten();
    void changesOfNoNodeAreRefused_data();
    void changesOfNoNodeAreRefused();
};

void tst_TopologyJournal::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_TopologyJournal::copyFollowsEveryChange()
{
    TopologyPlugin plugin;
    const auto model = qobject_cast<QStandardItemModel *>(plugin.getStandardTopologyModel());
    QStandardItemModel copy;
    const QAbstractItemModelTester tester(&copy);
    const TopologyRecorder recorder(*model, [&copy](const QJsonObject &change) {
        // As it comes back from a file.
        const QByteArray text = QJsonDocument(change).toJson();
        QVERIFY(applyTopologyChange(copy, QJsonDocument::fromJson(text).object()));
    });
    plugin.setSite(testSite());
    QCOMPARE(linesOf(copy).size(), 8);
    QCOMPARE(linesOf(copy), linesOf(*model));
    plugin.setNodeStatus(NodeType::Camera, QStringLiteral("north/annex/c1"), false);
    QVERIFY(linesOf(copy).join(u'\n').contains(QStringLiteral("|false")));
    QCOMPARE(linesOf(copy), linesOf(*model));
    plugin.removeCamera(QStringLiteral("north/c1"));
    plugin.removeStation(QStringLiteral("north/annex"));
    QCOMPARE(linesOf(copy), linesOf(*model));
    plugin.setSite({});
    QCOMPARE(linesOf(copy), linesOf(*model));
}

void tst_TopologyJournal::modelThatIsFilledAlreadyIsWritten()
{
    TopologyPlugin plugin;
    plugin.setSite(testSite());
    const auto model = qobject_cast<QStandardItemModel *>(plugin.getStandardTopologyModel());
    QStandardItemModel copy;
    const TopologyRecorder recorder(
        *model, [&copy](const QJsonObject &change) { QVERIFY(applyTopologyChange(copy, change)); });
    QCOMPARE(linesOf(copy), linesOf(*model));
}

void tst_TopologyJournal::changesOfNoNodeAreRefused_data()
{
    QTest::addColumn<QString>("change");
    for (const char *const change :
         {R"({})", R"({"path": [1], "change": {}})", R"({"path": [0, 0], "change": {}})",
          R"({"path": ["x"], "change": {}})", R"({"path": [], "change": {}})",
          R"({"path": [], "row": 2, "insert": []})", R"({"path": [], "row": -1, "insert": []})",
          R"({"path": [], "row": 0, "remove": 2})", R"({"path": [], "row": 1, "remove": 1})",
          R"({"path": [], "row": 0, "remove": 0})",
          R"({"path": [], "row": 1, "remove": 2147483647})"})
        QTest::newRow(change) << QString::fromLatin1(change);
}

void tst_TopologyJournal::changesOfNoNodeAreRefused()
{
    QFETCH(QString, change);
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("only")));
    QVERIFY(!applyTopologyChange(model, parsed(change)));
    QCOMPARE(model.rowCount(), 1);
}

QTEST_GUILESS_MAIN(tst_TopologyJournal)
#include "tst_TopologyJournal.moc"
