.pragma library

// Reads a file and calls back with its text, or with null if it cannot be read.
function read(url, callback) {
    const request = new XMLHttpRequest();
    request.onreadystatechange = () => {
        if (request.readyState === XMLHttpRequest.DONE)
            callback(request.status === 200 ? request.responseText : null);
    };
    request.open("GET", url);
    request.send();
}
