.pragma library

// Reads a file and calls back with its text, or with null if it cannot be read.
function read(url, callback) {
    const request = new XMLHttpRequest();
    request.onreadystatechange = () => {
        if (request.readyState !== XMLHttpRequest.DONE)
            return;
        // an empty file has no status, but only one that was opened has headers
        const opened = request.getAllResponseHeaders() !== "";
        callback(opened ? request.responseText : null);
    };
    request.open("GET", url);
    request.send();
}
