#ifndef RANDOMDRIVER_H
#define RANDOMDRIVER_H

#include "ReferenceMonitor.h"
#include "RowLog.h"
#include "TestHost.h"

#include <QRandomGenerator>
#include <QSortFilterProxyModel>

#include <memory>

/// One of the views that are kept over the error list, with what it was last told to show.
struct DrivenView
{
    QSortFilterProxyModel *proxy;
    int mask = 3;
    QString stationID;
    QString text;
};

/// Does the same random things to the loaded plug-in and to the reference.
///
/// That includes what others do behind the plug-in's back: to its lists, to the device tree, and to
/// the views. Everything follows from the seed, so that a failing run can be repeated. Few ids are
/// in play at a time, and they are chosen to be mistaken for one another: beginnings of each other,
/// with slashes, with percent markers, in other scripts, or empty.
class RandomDriver
{
public:
    explicit RandomDriver(quint32 seed);

    TestHost &host() { return *m_host; }
    ReferenceMonitor &reference() { return m_reference; }
    const QList<DrivenView> &views() const { return m_views; }

    /// Does one random thing to both and returns what it was, in words.
    QString step();

    /// Answers what was asked and not yet answered, so that no context is left over.
    void finish();

private:
    using Operation = QString (RandomDriver::*)();

    /// A node of the device tree, with the item that shows it.
    struct Node
    {
        ReferenceNode *values;
        QStandardItem *item;
    };

    QString reportNode();
    QString reportNodeAtStartUp();
    QString removeCamera();
    QString removeStation();
    QString changeTopology();
    QString changeNode();
    QString moveNode();
    QString sortNodes();
    QString removeNode();
    QString pairAnew();
    QString endTopology();
    QString removeRowsBehind();
    QString moveRowBehind();
    QString changeRowBehind();
    QString resetListBehind();
    QString walk();
    QString reportVolume();
    QString reportUsage();
    QString reportGroup();
    QString recount();
    QString requestSnooze();
    QString answerSnooze();
    QString answerSnoozeList();
    QString sendSnoozeEvent();
    QString sendReleaseEvent();
    QString sendResourceEvent();
    QString sendCapacityEvent();
    QString sendOtherEvent();
    QString changeFocus();
    QString askForSupport();
    QString answerSupport();
    QString reconnect();
    QString changeConnection();
    QString changePlugins();
    QString changeView();
    QString addView();
    QString endView();

    int below(int limit) { return static_cast<int>(m_random.bounded(limit)); }
    bool oneIn(int count) { return below(count) == 0; }
    template <typename Type> Type oneOf(const QList<Type> &values)
    {
        return values.at(below(static_cast<int>(values.size())));
    }
    QStringList someOf(const QStringList &all, int count);
    QString nodeID() { return oneIn(2) ? oneOf(m_stationIDs) : oneOf(m_cameraIDs); }
    QVariantMap snoozeData();
    QVariant networkEntry();
    ReferenceNode randomNode(int depth);
    Node someNode();
    void showTopology();
    QStandardItemModel &errorModel();

    QRandomGenerator m_random;
    QStringList m_stationIDs;
    QStringList m_cameraIDs;
    QStringList m_subIDs;
    int m_thresholds[3];
    std::unique_ptr<TestHost> m_host;
    RowLog m_errorRows;
    std::unique_ptr<TopologyModel> m_ownTopology; ///< takes the place of the host's
    TopologyModel *m_topology;                    ///< null while there is none
    ReferenceMonitor m_reference;
    QList<DrivenView> m_views;
    QObject m_viewsOwner;
    QList<void *> m_openQuestions; ///< contexts of support checks without an answer
};

#endif
