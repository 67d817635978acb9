import QtQuick

// What the main view expects of a page. Only the active page is shown.
Item {
    id: root

    property bool active: false
    // What fills the page, made when it is shown first: the IDE loads the pages when it starts, in
    // a window that may never be opened.
    property Component content: null
    property int margin: 12
    readonly property bool shown: visible && Window.visibility !== Window.Hidden

    // Finishes the page's own work before another page is shown, then calls continuation.
    function exitPage(continuation: var) {
        continuation();
    }

    visible: active

    onShownChanged: {
        if (shown)
            loader.active = true;
    }

    Loader {
        id: loader

        active: false
        anchors.fill: parent
        anchors.margins: root.margin
        sourceComponent: root.content
    }
}
