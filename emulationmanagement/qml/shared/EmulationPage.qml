import QtQuick

// The base of the pages. Only the active page is shown.
Item {
    id: root

    property bool active: false
    // What fills the page: a component, or a file whose root item has a required property "page".
    // It is created when the page is first shown, because the IDE loads all pages when it starts,
    // in a window that may never be opened. A file is not even read before.
    property Component content: null
    property url contentFile
    property int margin: 12
    readonly property bool shown: visible && Window.visibility !== Window.Hidden

    // Finishes the page's own work before another page is shown, then calls the function
    // continuation.
    function exitPage(continuation: var) {
        continuation();
    }

    visible: active

    onShownChanged: {
        if (!shown || loader.active)
            return;
        loader.active = true;
        if (!content)
            loader.setSource(contentFile, {page: root});
    }

    Loader {
        id: loader

        active: false
        anchors.fill: parent
        anchors.margins: root.margin
        sourceComponent: root.content
    }
}
