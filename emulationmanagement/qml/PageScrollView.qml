import QtQuick
import QtQuick.Controls

// Scrolls a page that is larger than the window, and brings what the Tab key reaches into view.
ScrollView {
    id: root

    readonly property Item focusedItem: Window.activeFocusItem

    function isInside(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === contentItem)
                return true;
        }
        return false;
    }

    // Scrolls as little as shows all of the range.
    function scrolledTo(bar: ScrollBar, start: real, length: real, contentLength: real): real {
        const visible = bar.size * contentLength;
        const position = Math.min(start, Math.max(start + length - visible,
                                                  bar.position * contentLength));
        return position / contentLength;
    }

    onFocusedItemChanged: {
        if (!focusedItem || !isInside(focusedItem))
            return;
        const flickable = contentItem as Flickable;
        const place = focusedItem.mapToItem(flickable.contentItem, 0, 0);
        ScrollBar.vertical.position = scrolledTo(ScrollBar.vertical, place.y, focusedItem.height,
                                                 contentHeight);
        ScrollBar.horizontal.position = scrolledTo(ScrollBar.horizontal, place.x,
                                                   focusedItem.width, contentWidth);
    }
}
