.pragma library

// The number with exactly as many decimals, and never as "-0.000".
function fixed(number, decimals, locale) {
    const scale = Math.pow(10, decimals);
    const rounded = Math.round(number * scale) / scale + 0; // -0 + 0 is 0
    return rounded.toLocaleString(locale, "f", decimals);
}
