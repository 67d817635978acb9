.pragma library

// Reads a file and calls back with its text, or with null if the file cannot be read.
function read(url, callback) {
    const request = new XMLHttpRequest();
    request.onreadystatechange = () => {
        if (request.readyState !== XMLHttpRequest.DONE)
            return;
        // The status does not tell whether the file was opened: an empty file has none. The headers
        // do.
        const opened = request.getAllResponseHeaders() !== "";
        callback(opened ? request.responseText : null);
    };
    request.open("GET", url);
    request.send();
}
