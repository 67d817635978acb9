import QtQuick
import QtQuick.Controls

// A combo box that a double click does not change. Its list opens with the current entry over the
// box, where the second click chooses the same entry again. If the window has no room for that, the
// list opens above or below the box, and the second click closes it.
ComboBox {
    id: root

    // The state when the list opened.
    property int openedIndex: 0
    property double openedTime: 0 // milliseconds
    property real boxTop: 0 // in the window

    readonly property ListView entries: popup.contentItem as ListView
    readonly property real entryHeight: entries.contentHeight / Math.max(1, count)
    readonly property real listHeight: entries.contentHeight + 2 * popup.padding
    readonly property real listOverBox: (height - entryHeight) / 2 - popup.padding
                                        - openedIndex * entryHeight
    readonly property real roomAbove: boxTop - popup.topMargin
    readonly property real roomBelow: Window.height - popup.bottomMargin - boxTop - height
    readonly property bool fitsOverBox: roomAbove + listOverBox >= 0
        && listOverBox + listHeight <= height + roomBelow

    // The user chose an entry.
    signal chosen(index: int)

    // Screen readers find no value of a combo box that has a name.
    Accessible.description: displayText
    // The palette of the pages has another colour for the edges of controls.
    popup.palette.window: themeBackgroundColorNormal // qmllint disable unqualified
    popup.height: fitsOverBox ? listHeight : Math.min(listHeight, Math.max(roomAbove, roomBelow))
    popup.y: {
        if (fitsOverBox)
            return listOverBox;
        return listHeight <= roomBelow || roomBelow >= roomAbove ? height : -popup.height;
    }
    popup.onAboutToShow: {
        openedIndex = Math.max(0, currentIndex);
        openedTime = Date.now();
        boxTop = mapToItem(null, 0, 0).y;
    }

    onActivated: index => {
        const isDoubleClick = index === openedIndex
            && Date.now() - openedTime < Application.styleHints.mouseDoubleClickInterval;
        openedTime = 0;
        if (!isDoubleClick)
            chosen(index);
    }
}
