#include "Machine.h"
#include "Options.h"
#include "Sections.h"
#include "Storms.h"
#include "Verify.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

// Loading comes first, idling before the memory is full of what storms leave.
QString measure(const Options &options)
{
    QStringList parts{describeRun()};
    if (options.isWanted(QStringLiteral("load")))
        parts << measureLoadTime(options);
    if (options.isWanted(QStringLiteral("idle")))
        parts << measureIdle(options);
    if (options.isWanted(QStringLiteral("sampler")))
        parts << measureSamplerTick(options);
    if (options.isWanted(QStringLiteral("memory")))
        parts << measureMemory(options);
    const QString storms = measureStorms(options);
    if (!storms.isEmpty())
        parts << storms;
    return parts.join(QLatin1Char('\n'));
}

void save(const QString &text, const QString &fileName)
{
    QFile file(fileName);
    verify(file.open(QIODevice::WriteOnly), "the output file");
    file.write(text.toUtf8());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const Options options = Options::fromArguments(QCoreApplication::arguments());
    const QString text = measure(options);
    std::fputs(qUtf8Printable(text), stdout);
    if (!options.outputFile.isEmpty())
        save(text, options.outputFile);
    return 0;
}
