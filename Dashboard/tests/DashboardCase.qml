import QtQuick
import QtTest
import Dashboard
import Dashboard.Testing

/// What the tests of the dashboard share: a clock that stands still, no warnings, a fresh stand-in
/// for the plug-in, and items found by the name that they tell assistive tools.
///
/// Put it into an item of the size that the tests need; what they create becomes its child.
TestCase {
    id: test

    /// 14 May 2024, 14:07:33 in local time.
    readonly property real now: new Date(2024, 4, 14, 14, 7, 33).getTime()
    readonly property real second: 1000
    readonly property real minute: 60 * second
    readonly property real hour: 60 * minute

    when: windowShown

    Component {
        id: pluginComponent

        FakePlugin {}
    }

    Component {
        id: spyComponent

        SignalSpy {}
    }

    function init() {
        failOnWarning(/.?/);
        Clock.running = false;
        Clock.now = now;
        Clock.serverRate = 1;
        Clock.serverOffset = 0;
        Theme.dark = true;
        Theme.zoom = 1;
    }

    function makePlugin(): FakePlugin {
        return createTemporaryObject(pluginComponent, parent);
    }

    function make(component: Component, properties: var): var {
        const item = createTemporaryObject(component, parent, properties ?? {});
        verify(item, "cannot be created");
        return item;
    }

    function spyOn(target: QtObject, signalName: string): SignalSpy {
        return createTemporaryObject(spyComponent, test,
                                     { "target": target, "signalName": signalName });
    }

    /// Lets the server's clock show @p milliseconds now, and run @p rate times as fast.
    function setServerTime(milliseconds: real, rate: real) {
        Clock.serverRate = rate;
        Clock.serverOffset = milliseconds - Clock.now * rate;
    }

    /// The items below @p item, itself included, that @p accepts.
    function itemsWhere(item: Item, accepts: var): var {
        let found = accepts(item) ? [item] : [];
        for (let i = 0; i < item.children.length; ++i)
            found = found.concat(itemsWhere(item.children[i], accepts));
        return found;
    }

    /// The visible item below @p item with an accessible name, or null.
    function named(item: Item, name: string): Item {
        return itemsWhere(item, candidate => candidate.visible
                                             && candidate.Accessible.name === name)[0] ?? null;
    }

    /// As named(), anywhere in the window, popups included.
    function inWindow(name: string): Item {
        let top = parent;
        while (top.parent)
            top = top.parent;
        return named(top, name);
    }

    /// The visible texts below @p item.
    function texts(item: Item): var {
        return itemsWhere(item, candidate => candidate.visible && candidate instanceof Text
                                             && candidate.text !== "").map(text => text.text);
    }

    function hasText(item: Item, text: string): bool {
        return texts(item).includes(text);
    }

    /// The texts of the hints that are shown.
    function tipTexts(): var {
        let top = parent;
        while (top.parent)
            top = top.parent;
        return itemsWhere(top, item => item.visible && item instanceof Text
                                       && String(item.parent).startsWith("QQuickPopupItem")).map(
                    text => text.text);
    }

    /// Clicks the item with an accessible name, anywhere in the window.
    function click(name: string) {
        tryVerify(() => inWindow(name) !== null, 1000, name + " is not there");
        mouseClick(inWindow(name));
    }
}
