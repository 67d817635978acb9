.pragma library

// What fits on a screen.
const maxLength = 1000;
const maxLines = 20;
const wordJoiner = "\u2060"; // invisible

// A text from outside as a dialog is to show it: shortened if need be, and with its markup as it
// stands there. What this returns is returned unchanged.
function shown(text) {
    let plain = text.substring(0, 2 * maxLength).replace(/\u2060/g, "");
    if (plain.length > maxLength)
        plain = plain.substring(0, maxLength - 1) + "…";
    const lines = plain.split(/\r\n?|[\n\u2028\u2029]/);
    if (lines.length > maxLines)
        plain = lines.slice(0, maxLines - 1).join("\n") + "\n…";
    // with something behind its first character, a tag or an entity is none
    return plain.replace(/[<&]/g, "$&" + wordJoiner);
}
