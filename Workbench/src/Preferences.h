#ifndef PREFERENCES_H
#define PREFERENCES_H

#include <QCoreApplication>
#include <QString>
#include <QVariant>

/// What the user chose in the dashboard, kept in a settings file between runs.
class Preferences
{
    Q_DECLARE_TR_FUNCTIONS(Preferences)

public:
    /// @param fileName made when something is first kept; empty to keep nothing
    explicit Preferences(QString fileName);

    /// Where the file of this program belongs.
    static QString usualFile();

    /// Whether the colours are dark; true where nothing else was chosen.
    bool isDark() const;

    /// Keeps the choice of colours. Where that fails, a warning names the file.
    void setDark(bool isDark);

    /// How many times as large as usual everything is shown; 1 where nothing else was chosen.
    double zoom() const;

    /// Keeps the size, as setDark() keeps the colours.
    void setZoom(double zoom);

private:
    QVariant value(const QString &key) const;
    void keep(const QString &key, const QVariant &value);

    const QString m_fileName;
};

#endif
