import Qt.labs.qmlmodels

// The points of a track, one a row.
TableModel {
    id: root

    // The parameter has no type, so that this function is not compiled to C++: a TableModel accepts
    // a JavaScript array, but not the list that compiled code passes.
    function setRows(points) {
        root.rows = points;
    }

    TableModelColumn {
        display: "No."
    }
    TableModelColumn {
        display: "Time"
    }
    TableModelColumn {
        display: "Latitude"
    }
    TableModelColumn {
        display: "Longitude"
    }
    TableModelColumn {
        display: "Altitude"
    }
}
