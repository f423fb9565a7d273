#include "Display.h"

#include <QProcessEnvironment>
#include <QTest>

class tst_Display : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayIsFoundInTheEnvironment_data();
    void displayIsFoundInTheEnvironment();
    void drawsOffscreenInSoftware();
};

void tst_Display::displayIsFoundInTheEnvironment_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("nothing") << QStringList() << false;
    QTest::newRow("X") << QStringList{QStringLiteral("DISPLAY=:0")} << true;
    QTest::newRow("Wayland") << QStringList{QStringLiteral("WAYLAND_DISPLAY=wayland-0")} << true;
    QTest::newRow("empty") << QStringList{QStringLiteral("DISPLAY=")} << false;
    QTest::newRow("frame buffer") << QStringList{QStringLiteral("QT_QPA_PLATFORM=linuxfb")} << true;
    QTest::newRow("memory only") << QStringList{QStringLiteral("QT_QPA_PLATFORM=offscreen"),
                                                QStringLiteral("DISPLAY=:0")}
                                 << false;
    QTest::newRow("nothing at all")
        << QStringList{QStringLiteral("QT_QPA_PLATFORM=minimal")} << false;
}

void tst_Display::displayIsFoundInTheEnvironment()
{
    QFETCH(QStringList, variables);
    QProcessEnvironment environment;
    for (const QString &variable : std::as_const(variables))
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    QTEST(hasDisplay(environment), "isFound");
}

void tst_Display::drawsOffscreenInSoftware()
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("QT_QUICK_BACKEND");
    drawOffscreen();
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("offscreen"));
    QCOMPARE(qgetenv("QT_QUICK_BACKEND"), QByteArray("software"));
    qputenv("QT_QUICK_BACKEND", "rhi");
    drawOffscreen();
    QCOMPARE(qgetenv("QT_QUICK_BACKEND"), QByteArray("rhi"));
}

QTEST_GUILESS_MAIN(tst_Display)
#include "tst_Display.moc"
