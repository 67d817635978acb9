.pragma library
.import "track-points.js" as TrackPoints

// Numbers as the user reads and types them: in English, whatever the user's language is. The texts
// have group separators, for example "1,234.00".

const {altRoundingSize, latLongRoundingSize} = TrackPoints;
const locale = Qt.locale("en_US");

function degreesText(degrees) {
    return degrees.toLocaleString(locale, "f", latLongRoundingSize);
}

function metresText(metres) {
    return metres.toLocaleString(locale, "f", altRoundingSize);
}

function percentText(fraction) {
    return (fraction * 100).toLocaleString(locale, "f", 2) + "%";
}

// Throws an error if the text is not a number.
function numberOf(text) {
    return Number.fromLocaleString(locale, text);
}
