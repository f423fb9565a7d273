#ifndef TABLE_H
#define TABLE_H

#include <QStringList>

/// A table in Markdown whose columns are aligned, so that it reads well as plain text too.
class Table
{
public:
    /// @param textColumns how many columns, from the left, hold text and not numbers
    Table(const QStringList &header, int textColumns);

    void add(const QStringList &row) { m_rows.append(row); }

    QString toMarkdown() const;

private:
    QString line(const QStringList &cells) const;
    QString rule() const;
    qsizetype width(qsizetype column) const;

    QList<QStringList> m_rows; ///< the header is the first
    int m_textColumns;
};

/// A number with as many decimals as it deserves: "0.08", "12.3", "9,187".
QString formatted(double number);

/// The same for a whole number: "20,000".
QString formatted(int number);

/// Factors: "1.25".
QString formattedFactor(double factor);

#endif
