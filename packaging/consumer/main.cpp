#include <PluginBase.h>

#include <QGuiApplication>
#include <QPluginLoader>
#include <QQmlComponent>
#include <QQmlEngine>

#include <memory>

namespace {

constexpr auto Page = "import QtQuick\nimport Dashboard\nText { text: Format.percent(50) }";

bool initialisesPlugin(const QString &file)
{
    QPluginLoader loader(file);
    const std::unique_ptr<QObject> object(loader.instance());
    const auto plugin = qobject_cast<PluginBase *>(object.get());
    if (!plugin)
        qCritical("%s", qUtf8Printable(loader.errorString()));
    return plugin && plugin->InitialPluginBase(nullptr, nullptr, nullptr);
}

bool showsDashboard(const QString &importPath)
{
    QQmlEngine engine;
    engine.addImportPath(importPath);
    QQmlComponent component(&engine);
    component.setData(Page, QUrl());
    const std::unique_ptr<QObject> page(component.create());
    if (!page)
        qCritical("%s", qUtf8Printable(component.errorString()));
    return page != nullptr;
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
    return initialisesPlugin(arguments.at(1)) && showsDashboard(arguments.at(2)) ? 0 : 1;
}
