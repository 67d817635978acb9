// Shows what the emulator answered, unless it is the empty text or "OK", and takes back the last
// switch of a sensor, which the emulator has refused.
function replyFromEmulatorReceivedHandler(reply, errorDialog) {
    if (reply === "" || reply === "OK")
        return;
    errorDialog.showOnce(reply);
    if (root.lastChangedSensorName === "")
        return;
    root.sensorsManager.setSensorEnabled(root.lastChangedSensorName, root.lastChangedSensorEnabled);
    root.lastChangedSensorName = "";
}
