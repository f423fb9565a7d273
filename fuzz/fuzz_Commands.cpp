#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "HostedPlugin.h"
#include "Invariants.h"
#include "NodeReport.h"
#include "PluginSystemMonitorCommon.h"
#include "SystemErrorModel.h"

// Responses to commands: their names, data and result codes. Questions wait for their answers side
// by side. Each has one, in any order, which frees the question's context.

using namespace Qt::Literals::StringLiterals;
using namespace PluginSystemMonitorCommon;

namespace {

QString resultCode(FuzzInput &input)
{
    static const QStringList codes{u"0"_s, u""_s, u"00"_s, FRAMEWORK_INTERNAL_ERROR};
    return input.below(8) == 7 ? input.text() : input.oneOf(codes);
}

QVariant responseData(FuzzInput &input, const QString &command)
{
    if (input.below(4) == 3)
        return input.value();
    if (command == METHOD_GET_SNOOZE_LIST)
        return QStringList{input.id(), input.id(), input.id()};
    QVariantMap snooze = input.map({ARG_SNOOZE_TIMESTAMP});
    snooze.insert(ARG_SNOOZE_NODE_ID, input.id());
    snooze.insert(ARG_SNOOZE_TYPE, 3 + input.below(2));
    return snooze;
}

/// How many texts share the memory of this one; an empty one has none.
int sharers(QString &text)
{
    const auto *const memory = text.data_ptr().d_ptr();
    return memory ? memory->ref_.loadRelaxed() : 0;
}

/// The questions that wait for their answers, each with a context of its own.
class OpenQuestions
{
public:
    explicit OpenQuestions(HostedPlugin &hosted)
        : m_hosted(hosted)
    { }

    void ask(FuzzInput &input)
    {
        m_hosted.host.acceptsCommands = input.flag();
        // The context shares the memory of what was asked, which therefore counts it.
        QString id = input.id();
        id.detach();
        const int alone = sharers(id);
        m_hosted.plugin.checkSupportSystemMonitor(id);
        void *const context = m_hosted.host.commands().last().context;
        m_hosted.host.forgetCommands();
        m_questions.append({std::move(id), alone, context});
        requireContexts();
    }

    void answerOne(FuzzInput &input)
    {
        if (m_questions.isEmpty())
            return;
        Question question = m_questions.takeAt(input.below(static_cast<int>(m_questions.size())));
        // Other answers leave the context alone, whatever they carry.
        m_hosted.respond(METHOD_SET_SNOOZE, {}, u"0"_s, question.context);
        m_hosted.respond(METHOD_GET_SNOOZE_LIST, m_hosted.plugin.snoozedDeviceList, u"0"_s,
                         question.context);
        require(sharers(question.id) == question.sharersWhileOpen(),
                "a context stays until its answer comes");
        m_hosted.respond(u"isSupportSystemMonitor"_s, input.value(), resultCode(input),
                         question.context);
        require(sharers(question.id) == question.alone, "an answer frees its context once");
        requireContexts();
    }

    void answerAll(FuzzInput &input)
    {
        while (!m_questions.isEmpty())
            answerOne(input);
    }

private:
    struct Question
    {
        QString id;
        int alone; ///< how many share the id's memory when there is no context
        void *context;

        int sharersWhileOpen() const { return id.isEmpty() ? 0 : alone + 1; }
    };

    void requireContexts()
    {
        for (Question &question : m_questions)
            require(sharers(question.id) == question.sharersWhileOpen(),
                    "an open question has one context, whatever is asked and answered beside it");
    }

    HostedPlugin &m_hosted;
    QList<Question> m_questions;
};

void respond(HostedPlugin &hosted, FuzzInput &input)
{
    static const QStringList commands{METHOD_SET_SNOOZE, METHOD_GET_SNOOZE_LIST,
                                      METHOD_RECONNECT_CAMERAS};
    QString command = input.below(8) == 7 ? input.text() : input.oneOf(commands);
    const QVariant data = responseData(input, command);
    const int rows = hosted.plugin.errorModel->rowCount();
    const QStringList snoozes = hosted.plugin.snoozedDeviceList;
    hosted.respond(command, data, resultCode(input));
    require(hosted.plugin.errorModel->rowCount() == rows, "a response changes no row");
    require(hosted.plugin.snoozedDeviceList
                == (command == METHOD_GET_SNOOZE_LIST ? data.toStringList() : snoozes),
            "a list of snoozes is taken whole, and nothing else snoozes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    HostedPlugin hosted;
    const LeftKeys leftKeys(hosted.plugin);
    RegularConsistency consistency(hosted.plugin);
    OpenQuestions questions(hosted);
    while (!input.isEmpty()) {
        switch (input.below(6)) {
        case 0:
            reportNode(hosted, input);
            break;
        case 1:
            if (input.flag())
                questions.ask(input);
            else
                questions.answerOne(input);
            break;
        case 2:
            hosted.plugin.setSnooze(input.id(), input.number(), static_cast<int>(input.number()));
            break;
        case 3:
            hosted.plugin.reconnectDisconnectCameras();
            hosted.plugin.reconnectDisconnectSubstations();
            break;
        default:
            respond(hosted, input);
        }
        consistency.afterStep();
    }
    questions.answerAll(input);
    requireConsistency(hosted.plugin);
    leftKeys.requireForgotten();
    return 0;
}
