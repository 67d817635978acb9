#pragma once

class TourGuide;

/// Walks through the plugin as a user does: from the IDE's menu through every page. Throws
/// WaitingFailed when the emulator does not receive what was sent.
void takeTour(TourGuide &guide);

/// Quits the IDE as a user does, with the plugin's window open: by its menu, or by the button of
/// its window if TOUR_CLOSE is set. A signal ends the process if that takes too long.
void quitIde(TourGuide &guide);
