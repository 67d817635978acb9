import QtQuick

// What the main view expects of a page. Only the active page is shown.
Item {
    property bool active: false

    // Finishes the page's own work before another page is shown, then calls continuation.
    function exitPage(continuation: var) {
        continuation();
    }

    visible: active
}
