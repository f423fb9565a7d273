#include <PluginBase.h>

#include <QGuiApplication>
#include <QPluginLoader>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTranslator>

#include <memory>

namespace {

// What the catalogues change: a text of the module's own, and one that the page takes from it with
// the plural form of one.
constexpr auto Page = R"qml(import QtQuick
import Dashboard
Text {
    text: Format.percent(50) + ": "
          + qsTranslate("CapacityBanner", "and %n more server(s)", "near their capacity", 1)
})qml";

bool initialisesPlugin(const QString &file)
{
    QPluginLoader loader(file);
    const std::unique_ptr<QObject> object(loader.instance());
    const auto plugin = qobject_cast<PluginBase *>(object.get());
    if (!plugin)
        qCritical("%s", qUtf8Printable(loader.errorString()));
    return plugin && plugin->InitialPluginBase(nullptr, nullptr, nullptr);
}

bool showsDashboard(const QString &importPath, const QString &expected)
{
    QQmlEngine engine;
    engine.addImportPath(importPath);
    QQmlComponent component(&engine);
    component.setData(Page, QUrl());
    const std::unique_ptr<QObject> page(component.create());
    if (!page) {
        qCritical("%s", qUtf8Printable(component.errorString()));
        return false;
    }
    const QString text = page->property("text").toString();
    if (text != expected)
        qCritical("expected %s, found %s", qUtf8Printable(expected), qUtf8Printable(text));
    return text == expected;
}

bool showsTranslated(const QString &importPath, const QLocale &locale, const QString &expected)
{
    const QString folder = importPath + QStringLiteral("/Dashboard/i18n");
    QTranslator translator;
    if (!translator.load(locale, QStringLiteral("Dashboard"), QStringLiteral("_"), folder)) {
        qCritical("%s has no catalogue for %s", qUtf8Printable(folder),
                  qUtf8Printable(locale.name()));
        return false;
    }
    QCoreApplication::installTranslator(&translator);
    return showsDashboard(importPath, expected);
}

} // namespace

/// A program outside the tree: arguments are the plug-in's file and the import path of the QML
/// module.
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    const QString &importPath = arguments.at(2);
    const bool works =
        initialisesPlugin(arguments.at(1))
        && showsTranslated(importPath, QLocale::English, QStringLiteral("50%: and 1 more server"))
        && showsTranslated(importPath, QLocale::German,
                           QStringLiteral("50\u00a0%: und ein weiterer Server"));
    return works ? 0 : 1;
}
