#include "OpenMetricsText.h"

#include <QLocale>

#include <cmath>

namespace {

QByteArray escaped(const QString &text)
{
    return text.toUtf8()
        .replace('\\', QByteArrayLiteral("\\\\"))
        .replace('\n', QByteArrayLiteral("\\n"))
        .replace('"', QByteArrayLiteral("\\\""));
}

QByteArray labelText(const OpenMetricsText::Labels &labels)
{
    if (labels.isEmpty())
        return {};
    QByteArrayList parts;
    for (const auto &[name, value] : labels)
        parts.append(name + "=\"" + escaped(value) + '"');
    return '{' + parts.join(',') + '}';
}

} // namespace

void OpenMetricsText::beginFamily(const QByteArray &name, Type type, const QByteArray &unit,
                                  const QString &help)
{
    m_sampleName = type == Type::Counter ? name + "_total" : name;
    m_text += "# TYPE " + name + (type == Type::Counter ? " counter\n" : " gauge\n");
    if (!unit.isEmpty())
        m_text += "# UNIT " + name + ' ' + unit + '\n';
    m_text += "# HELP " + name + ' ' + escaped(help) + '\n';
}

void OpenMetricsText::addSample(const Labels &labels, double value)
{
    if (!std::isfinite(value))
        return;
    m_text += m_sampleName + labelText(labels) + ' '
              + QByteArray::number(value, 'g', QLocale::FloatingPointShortest) + '\n';
}

QByteArray OpenMetricsText::text() const
{
    return m_text + "# EOF\n";
}
