#include "TopologyIndex.h"

#include "TopologyRoles.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Change = std::function<void(QStandardItemModel &)>;
using Signal = void (*)(QStandardItemModel &, QObject *, const std::function<void()> &);

const QStringList poolOfIds = {u"site"_s, u"a"_s,      u"b"_s, u"x"_s,  u"twin"_s,
                               u"7"_s,    u"hidden"_s, u""_s,  u"new"_s};

QStandardItem *node(const QVariant &id, const QList<QStandardItem *> &children = {})
{
    auto *item = new QStandardItem;
    item->setData(id, Topology::IdRole);
    item->appendRows(children);
    return item;
}

/// A tree in which "twin" occurs twice, a node has no id and "hidden" lies below another column.
void fill(QStandardItemModel &model)
{
    QStandardItem *site = node(u"site"_s, {node(u"a"_s, {node(u"x"_s), node(u"twin"_s)}),
                                           node(u"b"_s, {node(u"twin"_s)}), node({})});
    model.appendRow({site, node(u"hidden"_s, {node(u"hidden"_s)})});
    model.appendRow(node(u""_s));
}

QStandardItem *site(const QStandardItemModel &model)
{
    return model.item(0);
}

QModelIndex searched(const QStandardItemModel &model, const QString &id)
{
    return model
        .match(model.index(0, 0), Topology::IdRole, id, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

/// The ids for which the index and the model's own search answer differently.
QStringList differences(TopologyIndex &index, const QStandardItemModel &model)
{
    QStringList ids;
    for (const QString &id : poolOfIds) {
        if (index.find(id) != searched(model, id))
            ids.append(u'\'' + id + u'\'');
    }
    return ids;
}

/// Changes a tree and a searched model at random; every change leaves a tree behind.
class RandomChange
{
public:
    explicit RandomChange(quint32 seed)
        : m_random(seed)
    { }

    void apply(QStandardItemModel &model)
    {
        QStandardItem *parent = anyParent(model);
        QStandardItem *item = anyNode(model);
        switch (m_random.bounded(20)) {
        case 0:
        case 1:
        case 2:
            parent->appendRow(newTree());
            break;
        case 3:
        case 4:
            parent->insertRow(anyRow(parent, 1), newTree());
            break;
        case 5:
            parent->insertRows(anyRow(parent, 1), 1 + m_random.bounded(2));
            break;
        case 6:
            parent->removeRow(anyRow(parent));
            break;
        case 7:
            removeSomeRows(parent);
            break;
        case 8:
        case 9:
            moveRow(model, parent);
            break;
        case 10:
        case 11:
            if (item)
                item->setData(anyId(), Topology::IdRole);
            break;
        case 12:
            if (item)
                item->setData(anyId(), Topology::DisplayNameRole);
            break;
        case 13:
            parent->setChild(anyRow(parent), 0, newTree());
            break;
        case 14:
            delete parent->takeChild(anyRow(parent));
            break;
        case 15:
            delete item;
            break;
        case 16:
            model.setSortRole(Topology::IdRole);
            model.sort(0, m_random.bounded(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 17:
            parent->insertColumns(m_random.bounded(parent->columnCount() + 1), 1);
            break;
        case 18:
            if (parent->columnCount() > 1 || m_random.bounded(5) == 0)
                parent->removeColumn(m_random.bounded(qMax(1, parent->columnCount())));
            break;
        case 19:
            if (m_random.bounded(10) == 0)
                model.clear();
            else
                parent->setChild(anyRow(parent), 1, newTree());
            break;
        }
    }

    bool oneIn(int count) { return m_random.bounded(count) == 0; }

private:
    QVariant anyId()
    {
        if (oneIn(20))
            return oneIn(2) ? QVariant(7) : QVariant();
        return poolOfIds.at(m_random.bounded(static_cast<int>(poolOfIds.size())));
    }

    QStandardItem *newTree()
    {
        QStandardItem *item = node(anyId());
        for (int count = m_random.bounded(3); count > 0; --count)
            item->appendRow(node(anyId()));
        return item;
    }

    /// A row of this parent, or 0 if there is none.
    int anyRow(const QStandardItem *parent, int beyond = 0)
    {
        return m_random.bounded(qMax(1, parent->rowCount() + beyond));
    }

    QStandardItem *anyNode(const QStandardItemModel &model)
    {
        const QList<QStandardItem *> items = below(model.invisibleRootItem());
        return items.isEmpty() ? nullptr
                               : items.at(m_random.bounded(static_cast<int>(items.size())));
    }

    QStandardItem *anyParent(const QStandardItemModel &model)
    {
        QStandardItem *item = oneIn(3) ? nullptr : anyNode(model);
        return item ? item : model.invisibleRootItem();
    }

    void removeSomeRows(QStandardItem *parent)
    {
        const int first = anyRow(parent);
        const int count = qMin(3, parent->rowCount() - first);
        if (count > 0)
            parent->removeRows(first, count);
    }

    void moveRow(QStandardItemModel &model, QStandardItem *parent)
    {
        const QList<QStandardItem *> row = parent->takeRow(anyRow(parent));
        if (row.isEmpty())
            return;
        QStandardItem *target = anyParent(model);
        target->insertRow(anyRow(target, 1), row);
    }

    static QList<QStandardItem *> below(const QStandardItem *parent)
    {
        QList<QStandardItem *> items;
        for (int row = 0; row < parent->rowCount(); ++row) {
            for (int column = 0; column < parent->columnCount(); ++column) {
                if (QStandardItem *item = parent->child(row, column))
                    items << item << below(item);
            }
        }
        return items;
    }

    QRandomGenerator m_random;
};

template <typename Search> void searchDuringChanges(const QStandardItemModel &model, Search search)
{
    using Model = QAbstractItemModel;
    QObject::connect(&model, &Model::rowsAboutToBeInserted, &model, search);
    QObject::connect(&model, &Model::rowsInserted, &model, search);
    QObject::connect(&model, &Model::rowsAboutToBeRemoved, &model, search);
    QObject::connect(&model, &Model::rowsRemoved, &model, search);
    QObject::connect(&model, &Model::modelAboutToBeReset, &model, search);
}

/// Two models that an index searches by turns are changed at random. Returns what was found
/// otherwise than by search, if anything.
QString failureOfRandomChanges(quint32 seed)
{
    QStandardItemModel models[2];
    TopologyIndex index;
    int current = 0;
    QStringList during;
    for (QStandardItemModel &model : models) {
        fill(model);
        searchDuringChanges(model, [&] {
            if (&model == &models[current])
                during += differences(index, model);
        });
    }
    index.setModel(&models[current]);

    RandomChange random(seed);
    for (int step = 0; step < 60; ++step) {
        if (random.oneIn(20)) {
            current = 1 - current;
            if (random.oneIn(3))
                index.setModel(nullptr);
            index.setModel(&models[current]);
        }
        random.apply(models[random.oneIn(10) ? 1 - current : current]);
        const QStringList after = differences(index, models[current]);
        if (!during.isEmpty() || !after.isEmpty())
            return u"seed %1, step %2: during %3, after %4"_s.arg(
                QString::number(seed), QString::number(step), during.join(u' '), after.join(u' '));
    }
    return QString();
}

} // namespace

class tst_TopologyIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nodeIsFoundAtAnyDepth();
    void firstOfEqualIdsIsFound();
    void numberIsFoundByItsText();
    void idThatIsNeitherTextNorNumberIsNotFound();
    void emptyIdIsFound();
    void nodeBelowAnotherColumnIsNotFound();
    void nothingIsFoundInAnEmptyModel();
    void nothingIsFoundWithoutModel();
    void nothingIsFoundOnceTheModelIsDestroyed();
    void anotherModelTakesThePlaceOfTheFirst();
    void firstModelIsNoLongerFollowed();
    void changeIsFollowed_data();
    void changeIsFollowed();
    void searchDuringAChangeIsTrueThenAndAfter_data();
    void searchDuringAChangeIsTrueThenAndAfter();
    void modelSetInTheMiddleOfAChangeIsTrueAfterwards_data();
    void modelSetInTheMiddleOfAChangeIsTrueAfterwards();
    void randomChangesAreFollowed();
};

void tst_TopologyIndex::init()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
}

void tst_TopologyIndex::nodeIsFoundAtAnyDepth()
{
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    index.setModel(&model);
    QCOMPARE(index.find(u"site"_s), site(model)->index());
    QCOMPARE(index.find(u"b"_s), site(model)->child(1)->index());
    QCOMPARE(index.find(u"x"_s), site(model)->child(0)->child(0)->index());
    QVERIFY(!index.find(u"new"_s).isValid());
}

void tst_TopologyIndex::firstOfEqualIdsIsFound()
{
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    index.setModel(&model);
    QCOMPARE(index.find(u"twin"_s), site(model)->child(0)->child(1)->index());

    site(model)->child(0)->removeRow(1);
    QCOMPARE(index.find(u"twin"_s), site(model)->child(1)->child(0)->index());
}

void tst_TopologyIndex::numberIsFoundByItsText()
{
    QStandardItemModel model;
    fill(model);
    site(model)->appendRow(node(7));
    TopologyIndex index;
    index.setModel(&model);
    QCOMPARE(index.find(u"7"_s), site(model)->child(3)->index());
    QCOMPARE(index.find(u"7.0"_s), searched(model, u"7.0"_s));

    site(model)->removeRow(3);
    QVERIFY(!index.find(u"7"_s).isValid());
}

void tst_TopologyIndex::idThatIsNeitherTextNorNumberIsNotFound()
{
    QStandardItemModel model;
    model.appendRow(node(QByteArray("x")));
    model.appendRow(node(QVariant()));
    TopologyIndex index;
    index.setModel(&model);
    QVERIFY(!index.find(u"x"_s).isValid());
    QVERIFY(!index.find(u""_s).isValid());
}

void tst_TopologyIndex::emptyIdIsFound()
{
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    index.setModel(&model);
    QCOMPARE(index.find(u""_s), model.index(1, 0));
    QCOMPARE(index.find(QString()), model.index(1, 0));
}

void tst_TopologyIndex::nodeBelowAnotherColumnIsNotFound()
{
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    index.setModel(&model);
    QVERIFY(!index.find(u"hidden"_s).isValid());

    model.item(0, 1)->appendRow(node(u"new"_s));
    QVERIFY(!index.find(u"new"_s).isValid());
}

void tst_TopologyIndex::nothingIsFoundInAnEmptyModel()
{
    QStandardItemModel model;
    TopologyIndex index;
    index.setModel(&model);
    QCOMPARE(differences(index, model).join(u' '), QString());
    QVERIFY(!index.find(u""_s).isValid());
}

void tst_TopologyIndex::nothingIsFoundWithoutModel()
{
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    QVERIFY(!index.find(u"site"_s).isValid());

    index.setModel(&model);
    QVERIFY(index.find(u"site"_s).isValid());
    index.setModel(nullptr);
    QVERIFY(!index.find(u"site"_s).isValid());
}

void tst_TopologyIndex::nothingIsFoundOnceTheModelIsDestroyed()
{
    auto model = std::make_unique<QStandardItemModel>();
    fill(*model);
    TopologyIndex index;
    index.setModel(model.get());
    QVERIFY(index.find(u"site"_s).isValid());
    model.reset();
    QVERIFY(!index.find(u"site"_s).isValid());

    QStandardItemModel other;
    other.appendRow(node(u"new"_s));
    index.setModel(&other);
    QCOMPARE(differences(index, other).join(u' '), QString());
}

void tst_TopologyIndex::anotherModelTakesThePlaceOfTheFirst()
{
    QStandardItemModel first;
    fill(first);
    QStandardItemModel second;
    second.appendRow(node(u"new"_s));
    TopologyIndex index;
    index.setModel(&first);
    QVERIFY(index.find(u"site"_s).isValid());

    index.setModel(&second);
    QVERIFY(!index.find(u"site"_s).isValid());
    QCOMPARE(index.find(u"new"_s), second.index(0, 0));
}

void tst_TopologyIndex::firstModelIsNoLongerFollowed()
{
    QStandardItemModel first;
    fill(first);
    QStandardItemModel second;
    fill(second);
    TopologyIndex index;
    index.setModel(&first);
    index.setModel(&second);
    QCOMPARE(differences(index, second).join(u' '), QString());

    first.appendRow(node(u"new"_s));
    first.removeRow(0);
    QCOMPARE(differences(index, second).join(u' '), QString());
}

void tst_TopologyIndex::changeIsFollowed_data()
{
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("node appended", [](auto &model) { site(model)->appendRow(node(u"new"_s)); });
    row("tree appended",
        [](auto &model) { model.appendRow(node(9, {node(u"new"_s, {node(u"twin"_s)})})); });
    row("equal id inserted before", [](auto &model) { model.insertRow(0, node(u"twin"_s)); });
    row("equal id inserted after", [](auto &model) { model.appendRow(node(u"twin"_s)); });
    row("bare rows inserted", [](auto &model) { model.insertRows(0, 2); });
    row("only one removed", [](auto &model) { site(model)->child(0)->removeRow(0); });
    row("first of equals removed", [](auto &model) { site(model)->removeRow(0); });
    row("last of equals removed", [](auto &model) { site(model)->removeRow(1); });
    row("both equals removed", [](auto &model) { site(model)->removeRows(0, 2); });
    row("id changed", [](auto &model) { site(model)->setData(u"new"_s, Topology::IdRole); });
    row("id changed to an equal of a later one",
        [](auto &model) { site(model)->setData(u"b"_s, Topology::IdRole); });
    row("id of the first of equals changed",
        [](auto &model) { site(model)->child(0)->child(1)->setData(u"new"_s, Topology::IdRole); });
    row("id changed to a number", [](auto &model) { site(model)->setData(7, Topology::IdRole); });
    row("number changed to a text", [](auto &model) {
        site(model)->child(2)->setData(7, Topology::IdRole);
        site(model)->child(2)->setData(u"7"_s, Topology::IdRole);
    });
    row("id given", [](auto &model) { site(model)->child(2)->setData(u"7"_s, Topology::IdRole); });
    row("data cleared", [](auto &model) { site(model)->clearData(); });
    row("change announced without roles", [](auto &model) {
        Q_EMIT model.dataChanged(site(model)->child(0)->index(), site(model)->child(1)->index());
    });
    row("display name changed",
        [](auto &model) { site(model)->setData(u"new"_s, Topology::DisplayNameRole); });
    row("re-parented", [](auto &model) {
        const QList<QStandardItem *> taken = site(model)->takeRow(1);
        model.insertRow(0, taken);
    });
    row("item replaced", [](auto &model) { site(model)->setChild(0, node(u"new"_s)); });
    row("top item replaced", [](auto &model) { model.setItem(0, node(u"twin"_s)); });
    row("item replaced by none", [](auto &model) { model.setItem(0, nullptr); });
    row("child taken", [](auto &model) { delete site(model)->takeChild(0); });
    row("top item taken", [](auto &model) { delete model.takeItem(0); });
    row("item deleted", [](auto &model) { delete site(model)->child(0); });
    row("item with grandchildren deleted", [](auto &model) { delete site(model); });
    row("sorted", [](auto &model) {
        model.setSortRole(Topology::IdRole);
        model.sort(0, Qt::DescendingOrder);
    });
    row("cleared", [](auto &model) { model.clear(); });
    row("cleared and filled", [](auto &model) {
        model.clear();
        model.appendRow(node(u"twin"_s));
    });
    row("column inserted before", [](auto &model) { model.insertColumn(0); });
    row("column inserted after", [](auto &model) { model.insertColumn(1); });
    row("first column removed", [](auto &model) { model.removeColumn(0); });
    row("last column removed", [](auto &model) { model.removeColumn(1); });
    row("columns of a child removed", [](auto &model) { site(model)->child(0)->removeColumn(0); });
}

void tst_TopologyIndex::changeIsFollowed()
{
    QFETCH(const Change, change);
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    index.setModel(&model);
    QCOMPARE(differences(index, model).join(u' '), QString());
    change(model);
    QCOMPARE(differences(index, model).join(u' '), QString());
    change(model);
    fill(model);
    QCOMPARE(differences(index, model).join(u' '), QString());
}

void tst_TopologyIndex::searchDuringAChangeIsTrueThenAndAfter_data()
{
    QTest::addColumn<Signal>("connectTo");
    QTest::addColumn<bool>("connectsFirst");
    QTest::addColumn<Change>("change");

    using Model = QAbstractItemModel;
    const auto rows = [](const char *name, Signal connectTo, const Change &change) {
        QTest::addRow("%s, before the index", name) << connectTo << true << change;
        QTest::addRow("%s, after the index", name) << connectTo << false << change;
    };
    const Change removeFirst = [](auto &model) { site(model)->removeRow(0); };
    rows(
        "rowsAboutToBeRemoved",
        [](auto &model, QObject *context, const auto &search) {
            QObject::connect(&model, &Model::rowsAboutToBeRemoved, context, search);
        },
        removeFirst);
    rows(
        "rowsRemoved",
        [](auto &model, QObject *context, const auto &search) {
            QObject::connect(&model, &Model::rowsRemoved, context, search);
        },
        removeFirst);
    rows(
        "columnsAboutToBeRemoved",
        [](auto &model, QObject *context, const auto &search) {
            QObject::connect(&model, &Model::columnsAboutToBeRemoved, context, search);
        },
        [](auto &model) { model.removeColumn(0); });
    rows(
        "modelAboutToBeReset",
        [](auto &model, QObject *context, const auto &search) {
            QObject::connect(&model, &Model::modelAboutToBeReset, context, search);
        },
        [](auto &model) { model.clear(); });
}

void tst_TopologyIndex::searchDuringAChangeIsTrueThenAndAfter()
{
    QFETCH(const Signal, connectTo);
    QFETCH(const bool, connectsFirst);
    QFETCH(const Change, change);
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    QObject context;
    int searches = 0;
    QStringList found;
    const auto search = [&] {
        ++searches;
        found += differences(index, model);
    };

    if (connectsFirst)
        connectTo(model, &context, search);
    index.setModel(&model);
    if (!connectsFirst)
        connectTo(model, &context, search);
    QCOMPARE(differences(index, model).join(u' '), QString());
    change(model);
    QCOMPARE(searches, 1);
    QCOMPARE(found.join(u' '), QString());
    QCOMPARE(differences(index, model).join(u' '), QString());
}

void tst_TopologyIndex::modelSetInTheMiddleOfAChangeIsTrueAfterwards_data()
{
    searchDuringAChangeIsTrueThenAndAfter_data();
}

void tst_TopologyIndex::modelSetInTheMiddleOfAChangeIsTrueAfterwards()
{
    QFETCH(const Signal, connectTo);
    QFETCH(const Change, change);
    QStandardItemModel model;
    fill(model);
    TopologyIndex index;
    QObject context;
    QStringList found;
    connectTo(model, &context, [&] {
        index.setModel(&model);
        found += differences(index, model);
    });
    change(model);
    QCOMPARE(found.join(u' '), QString());
    // Items of that size take the place of those that are gone.
    QList<QStandardItem *> others;
    for (int i = 0; i < 100; ++i)
        others.append(new QStandardItem(u"other"_s));
    QCOMPARE(differences(index, model).join(u' '), QString());
    qDeleteAll(others);
}

void tst_TopologyIndex::randomChangesAreFollowed()
{
    for (quint32 seed = 1; seed <= 300; ++seed) {
        const QString failure = failureOfRandomChanges(seed);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
}

QTEST_GUILESS_MAIN(tst_TopologyIndex)
#include "tst_TopologyIndex.moc"
