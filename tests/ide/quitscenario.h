#pragma once

#include <QByteArray>

/*!
 * Brings the IDE into the state \a name and quits it as \a manner says: "menu" chooses File > Exit,
 * "close" closes the main window.
 *
 * Ends the process with another status if the state cannot be brought about, and with a signal if
 * the IDE does not end by itself.
 */
void playQuitScenario(const QByteArray &name, const QByteArray &manner);
