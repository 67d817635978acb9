import QtQuick

// The base of the pages. Only the active page is shown.
Item {
    id: root

    property bool active: false
    // What fills the page: a file whose root item has a required property "page". It is read when
    // the page is first shown, because the IDE loads all pages when it starts, in a window that may
    // never be opened.
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
        if (shown && loader.status === Loader.Null)
            loader.setSource(contentFile, {page: root});
    }

    Loader {
        id: loader

        anchors.fill: parent
        anchors.margins: root.margin
    }
}
