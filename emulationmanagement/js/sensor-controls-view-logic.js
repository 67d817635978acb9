// Shows what the emulator answered, unless it is the empty text or "OK". An error does not say
// which call was refused: after "Apply", the emulator is asked for the states of all sensors.
function replyFromEmulatorReceivedHandler(reply, errorDialog) {
    if (reply === "" || reply === "OK")
        return;
    errorDialog.showOnce(reply);
    if (root.lastChangedSensorName === "")
        return;
    root.lastChangedSensorName = ""; // first: a question that is refused, too, is not repeated
    const availability = root.sensorsManager.sensorsAvailability;
    for (const name of Object.keys(availability).filter(name => availability[name]))
        root.sensorsManager.checkSensorState(name);
}
