#include "FuzzTarget.h"

#include <QCoreApplication>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Timers need a thread with an event dispatcher; warnings would slow the run down.
    static QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qUtf8Printable(message));
    });
    return 0;
}
