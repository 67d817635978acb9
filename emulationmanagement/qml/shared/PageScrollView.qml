import QtQuick
import QtQuick.Controls

// Scrolls a page that is larger than the window, also to the control that the Tab key reaches.
ScrollView {
    id: root

    readonly property Item focusedItem: Window.activeFocusItem
    readonly property bool isTooWide: contentWidth > width
    readonly property bool isTooHigh: contentHeight > height

    function isInside(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === contentItem)
                return true;
        }
        return false;
    }

    // The bar's position after the least scrolling that shows the whole range.
    function scrolledTo(bar: ScrollBar, start: real, length: real, contentLength: real): real {
        const visible = bar.size * contentLength;
        const position = Math.min(start, Math.max(start + length - visible,
                                                  bar.position * contentLength));
        // a control that is stretched to the view's width ends beyond contentLength
        return Math.max(0, Math.min(position / contentLength, 1 - bar.size));
    }

    // The style shows bars only while they are used, so users would not know that there is more.
    ScrollBar.horizontal.policy: isTooWide ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    ScrollBar.vertical.policy: isTooHigh ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    bottomPadding: isTooWide ? ScrollBar.horizontal.height : 0
    rightPadding: isTooHigh ? ScrollBar.vertical.width : 0

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
