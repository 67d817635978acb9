import Qt.labs.qmlmodels

// The points of a track, one a row.
TableModel {
    id: root

    // Untyped, and so not compiled to C++, whose lists the model takes for no arrays.
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
