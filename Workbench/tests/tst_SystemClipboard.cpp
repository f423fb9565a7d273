#include "SystemClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

class tst_SystemClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void putsTextsAsTheyAre();
};

void tst_SystemClipboard::putsTextsAsTheyAre()
{
    SystemClipboard clipboard;
    const QString text = QStringLiteral("a\tb\n<b>c</b>");
    QVERIFY(QMetaObject::invokeMethod(&clipboard, "put", Q_ARG(QString, text)));
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

QTEST_MAIN(tst_SystemClipboard)
#include "tst_SystemClipboard.moc"
