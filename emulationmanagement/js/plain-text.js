.pragma library

// A longer text would not fit on the screen.
const maxLength = 1000;
const maxLines = 20;

// The beginning of a text from outside, short enough for a dialog.
function shortened(text) {
    const plain = text.length > maxLength ? text.substring(0, maxLength - 1) + "…" : text;
    const lines = plain.split(/\r\n?|[\n\u2028\u2029]/);
    return lines.length > maxLines ? lines.slice(0, maxLines - 1).join("\n") + "\n…" : plain;
}
