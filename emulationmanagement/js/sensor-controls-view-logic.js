// Shows a reply of the emulator, unless it is empty or "OK". An error does not name the call that
// was refused, so after "Apply" the emulator is asked for the states of all sensors.
function replyFromEmulatorReceivedHandler(reply, errorDialog) {
    if (reply === "" || reply === "OK")
        return;
    errorDialog.showOnce(reply);
    if (root.lastChangedSensorName === "")
        return;
    // The emulator can refuse these questions, too. They must not be repeated then.
    root.lastChangedSensorName = "";
    const availability = root.sensorsManager.sensorsAvailability;
    for (const name of Object.keys(availability).filter(name => availability[name]))
        root.sensorsManager.checkSensorState(name);
}
