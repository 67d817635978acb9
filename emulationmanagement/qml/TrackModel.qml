import QtQuick
import QtQml.Models
import Qt.labs.qmlmodels

// The points of a track, one a row, of which one may be current.
QtObject {
    id: root

    readonly property alias rowCount: tableModel.rowCount
    readonly property int currentRow: selection.currentIndex.row // -1 for none

    readonly property TableModel tableModel: TableModel {
        id: tableModel

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
    readonly property ItemSelectionModel selection: ItemSelectionModel {
        id: selection

        model: tableModel
    }

    function row(index: int): var {
        return tableModel.getRow(index);
    }

    // Takes other rows, none of them current. Untyped, and so not compiled to C++, whose lists the
    // model takes for no arrays.
    function setRows(rows) {
        selection.clearCurrentIndex();
        tableModel.rows = rows;
    }

    function selectRow(index: int) {
        selection.setCurrentIndex(tableModel.index(index, 0), ItemSelectionModel.NoUpdate);
    }
}
