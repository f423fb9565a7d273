#include "MetricsText.h"

#include <QCoreApplication>

#include <utility>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':';
}

bool isNamePart(char c)
{
    return isNameStart(c) || (c >= '0' && c <= '9');
}

class Line
{
    Q_DECLARE_TR_FUNCTIONS(MetricsText)

public:
    Line(QByteArrayView text, qsizetype number)
        : m_text(text)
        , m_number(number)
    { }

    bool hasMetric();
    Metric metric();

private:
    bool isAtEnd() const { return m_position == m_text.size(); }
    bool isAt(char c) const { return !isAtEnd() && m_text.at(m_position) == c; }
    void skipBlanks();
    bool skip(char c);
    void expect(char c);
    QString name(const QString &expected);
    QString quoted();
    QHash<QString, QString> labels();
    QByteArray word();
    double number(const QString &expected);
    [[noreturn]] void fail(const QString &expected) const;

    QByteArrayView m_text;
    qsizetype m_number;
    qsizetype m_position = 0;
};

bool Line::hasMetric()
{
    skipBlanks();
    return !isAtEnd() && !isAt('#');
}

Metric Line::metric()
{
    Metric metric;
    metric.name = name(tr("a name"));
    skipBlanks();
    if (skip('{'))
        metric.labels = labels();
    skipBlanks();
    metric.value = number(tr("a number"));
    skipBlanks();
    if (!isAtEnd() && !isAt('#')) // what follows a # is an exemplar
        number(tr("a timestamp"));
    skipBlanks();
    if (!isAtEnd() && !isAt('#'))
        fail(tr("the end of the line"));
    return metric;
}

void Line::skipBlanks()
{
    while (!isAtEnd() && isBlank(m_text.at(m_position)))
        ++m_position;
}

bool Line::skip(char c)
{
    if (!isAt(c))
        return false;
    ++m_position;
    return true;
}

void Line::expect(char c)
{
    skipBlanks();
    if (!skip(c))
        fail(QString(QLatin1Char(c)));
}

QString Line::name(const QString &expected)
{
    const qsizetype start = m_position;
    if (isAtEnd() || !isNameStart(m_text.at(start)))
        fail(expected);
    while (!isAtEnd() && isNamePart(m_text.at(m_position)))
        ++m_position;
    return QString::fromLatin1(m_text.sliced(start, m_position - start));
}

// An unknown escape stands for itself.
QString Line::quoted()
{
    QByteArray text;
    expect('"');
    while (!isAtEnd() && !isAt('"')) {
        char c = m_text.at(m_position++);
        if (c == '\\' && !isAtEnd()) {
            c = m_text.at(m_position++);
            if (c == 'n')
                c = '\n';
            else if (c != '\\' && c != '"')
                text.append('\\');
        }
        text.append(c);
    }
    expect('"');
    return QString::fromUtf8(text);
}

QHash<QString, QString> Line::labels()
{
    QHash<QString, QString> labels;
    for (skipBlanks(); !skip('}'); skipBlanks()) {
        const QString label = name(tr("the name of a label"));
        expect('=');
        skipBlanks();
        labels.insert(label, quoted());
        skipBlanks();
        if (!skip(',') && !isAt('}'))
            fail(tr("a comma"));
    }
    return labels;
}

QByteArray Line::word()
{
    const qsizetype start = m_position;
    while (!isAtEnd() && !isBlank(m_text.at(m_position)))
        ++m_position;
    return m_text.sliced(start, m_position - start).toByteArray();
}

double Line::number(const QString &expected)
{
    const qsizetype start = m_position;
    bool isNumber = false;
    // Qt knows infinity and "not a number" in small letters.
    const double number = word().toLower().toDouble(&isNumber);
    if (!isNumber) {
        m_position = start;
        fail(expected);
    }
    return number;
}

void Line::fail(const QString &expected) const
{
    throw MetricsError(
        tr("line %1, column %2: expected %3")
            .arg(QString::number(m_number), QString::number(m_position + 1), expected));
}

} // namespace

std::vector<Metric> parseMetrics(const QByteArray &text)
{
    if (text.size() > MaxMetricsSize)
        throw MetricsError(Line::tr("more than %1 bytes").arg(MaxMetricsSize));
    std::vector<Metric> metrics;
    qsizetype number = 0;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype newline = text.indexOf('\n', start);
        const qsizetype end = newline < 0 ? text.size() : newline;
        QByteArrayView content = QByteArrayView(text).sliced(start, end - start);
        if (content.endsWith('\r'))
            content.chop(1);
        Line line(content, ++number);
        if (line.hasMetric())
            metrics.push_back(line.metric());
        start = end + 1;
    }
    return metrics;
}
