.pragma library

// Contrast of colours, as the Web Content Accessibility Guidelines 2.2 define it: 1 for equal
// colours, 21 for black and white. Texts need 4.5, edges of controls need 3.

function relativeLuminance(color) {
    const linear = part => part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
    return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
}

function contrast(one, other) {
    const luminances = [relativeLuminance(one), relativeLuminance(other)];
    return (Math.max(...luminances) + 0.05) / (Math.min(...luminances) + 0.05);
}

// Returns the color, mixed with black or white until it has this contrast with the background.
function withContrast(color, background, ratio) {
    const steps = 64;
    const pole = contrast(background, Qt.rgba(0, 0, 0, 1)) > contrast(background, Qt.rgba(1, 1, 1, 1))
        ? 0 : 1;
    const mix = (part, share) => part + (pole - part) * share;
    for (let step = 0; step < steps; ++step) {
        const share = step / steps;
        const mixed = Qt.rgba(mix(color.r, share), mix(color.g, share), mix(color.b, share), 1);
        if (contrast(mixed, background) >= ratio)
            return mixed;
    }
    return Qt.rgba(pole, pole, pole, 1);
}

// Returns the first of these colours that can be read as text on the background, otherwise the one
// with the highest contrast.
function readableOn(background, colors) {
    return colors.find(color => contrast(color, background) >= 4.5)
        ?? colors.reduce((best, color) => contrast(color, background) > contrast(best, background)
                         ? color : best);
}
