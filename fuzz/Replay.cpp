#include "FuzzTarget.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cstdio>

// Runs a target without a fuzzer: every file of a corpus as it stands, then variations of them.
// They are the same in every run.

namespace {

constexpr int VariationsOfAFile = 100;

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QByteArray varied(QByteArray input, const QByteArray &other, QRandomGenerator &random)
{
    const auto below = [&random](qsizetype limit) {
        return static_cast<qsizetype>(
            random.bounded(static_cast<quint64>(qMax<qsizetype>(1, limit))));
    };
    for (int changes = 1 + random.bounded(4); changes > 0; --changes) {
        const qsizetype position = below(input.size());
        switch (random.bounded(4)) {
        case 0:
            input.insert(position, static_cast<char>(random.bounded(256)));
            break;
        case 1:
            input.remove(position, 1 + below(4));
            break;
        case 2:
            input.replace(position, 1, QByteArray(1, static_cast<char>(random.bounded(256))));
            break;
        default:
            input.insert(position, other.mid(below(other.size()), below(16)));
        }
    }
    return input;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s CORPUS\n", argv[0]);
        return 2;
    }
    LLVMFuzzerInitialize(&argc, &argv);
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    QByteArrayList corpus;
    for (const QString &name : directory.entryList(QDir::Files, QDir::Name)) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            corpus.append(file.readAll());
    }
    if (corpus.isEmpty()) {
        std::fprintf(stderr, "%s: expected a directory with inputs\n", argv[1]);
        return 2;
    }

    QRandomGenerator random(1);
    run({});
    for (const QByteArray &input : std::as_const(corpus)) {
        run(input);
        for (int i = 0; i < VariationsOfAFile; ++i)
            run(varied(input, corpus.at(random.bounded(static_cast<int>(corpus.size()))), random));
    }
    std::printf("%lld inputs and %d variations of each\n", static_cast<long long>(corpus.size()),
                VariationsOfAFile);
    return 0;
}
