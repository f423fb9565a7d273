#include "Table.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

Table::Table(const QStringList &header, int textColumns)
    : m_rows{header}
    , m_textColumns(textColumns)
{ }

QString Table::toMarkdown() const
{
    QString text = line(m_rows.first()) + rule();
    for (qsizetype row = 1; row < m_rows.size(); ++row)
        text += line(m_rows.at(row));
    return text;
}

QString Table::line(const QStringList &cells) const
{
    QString text = QStringLiteral("|");
    for (qsizetype column = 0; column < cells.size(); ++column) {
        const QString &cell = cells.at(column);
        const QString padded = column < m_textColumns ? cell.leftJustified(width(column))
                                                      : cell.rightJustified(width(column));
        text += QStringLiteral(" %1 |").arg(padded);
    }
    return text + QLatin1Char('\n');
}

QString Table::rule() const
{
    QString text = QStringLiteral("|");
    for (qsizetype column = 0; column < m_rows.first().size(); ++column) {
        const QString dashes(width(column) + 1, QLatin1Char('-'));
        text += dashes + QLatin1Char(column < m_textColumns ? '-' : ':') + QLatin1Char('|');
    }
    return text + QLatin1Char('\n');
}

qsizetype Table::width(qsizetype column) const
{
    qsizetype width = 0;
    for (const QStringList &row : m_rows)
        width = std::max(width, row.at(column).size());
    return width;
}

namespace {

QString withDecimals(double number, int decimals)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(number, 'f', decimals);
}

} // namespace

QString formatted(double number)
{
    const double size = std::abs(number);
    return withDecimals(number, size < 10 ? 2 : size < 100 ? 1 : 0);
}

QString formatted(int number)
{
    return withDecimals(number, 0);
}

QString formattedFactor(double factor)
{
    return withDecimals(factor, factor < 100 ? 2 : 0);
}
