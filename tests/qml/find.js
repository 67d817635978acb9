.pragma library

// The first item below the given one, depth first, that accept() is true for, or null.
function find(item, accept) {
    for (const child of item.children) {
        const found = accept(child) ? child : find(child, accept);
        if (found)
            return found;
    }
    return null;
}
