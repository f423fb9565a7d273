#ifndef PREFERENCES_H
#define PREFERENCES_H

#include <QCoreApplication>
#include <QString>

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

private:
    const QString m_fileName;
};

#endif
