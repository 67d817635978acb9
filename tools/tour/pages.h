#pragma once

class TourGuide;

// The tour's parts. Each shows its page and uses it with one gesture of each kind. It throws
// WaitingFailed when the emulator does not receive what was sent.

/// Switches sensors off and on, chooses another device model and sets values.
void visitSensorsPages(TourGuide &guide);
/// Turns and moves the device. The plugin asks first, because values were set by hand before.
void visitDeviceModelPage(TourGuide &guide);
/// Sets a position, plays a track and goes to another of its points.
void visitGpsPage(TourGuide &guide);
/// Streams a virtual camera, unplugs it, and streams a video file.
void visitCameraPage(TourGuide &guide);
/// Shows the IDE's output pane, and plays a recording there.
void visitOutputPane(TourGuide &guide);
