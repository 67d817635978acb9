<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccelerometerControls</name>
    <message>
        <source>Accelerometer</source>
        <translation>Beschleunigungssensor</translation>
    </message>
    <message>
        <source>m/s²</source>
        <translation>m/s²</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
</context>
<context>
    <name>AxesControls</name>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
</context>
<context>
    <name>CalibrationLevelSlider</name>
    <message>
        <source>Calib. level</source>
        <translation>Kalibrierung</translation>
    </message>
</context>
<context>
    <name>CameraManagementPage</name>
    <message>
        <source>Could not determine the video codec of the video file. Supported codecs: VP8 and VP9.</source>
        <translation>Der Videocodec der Datei konnte nicht ermittelt werden. Unterstützte Codecs: VP8 und VP9.</translation>
    </message>
    <message>
        <source>Camera emulation does not support %1. Supported codecs: VP8 and VP9.</source>
        <translation>Die Kameraemulation unterstützt %1 nicht. Unterstützte Codecs: VP8 und VP9.</translation>
    </message>
    <message>
        <source>Open Video File</source>
        <translation>Videodatei öffnen</translation>
    </message>
    <message>
        <source>Video files (*.webm *.mkv)</source>
        <translation>Videodateien (*.webm *.mkv)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Host camera</source>
        <translation>Kamera des Rechners</translation>
    </message>
    <message>
        <source>Video file</source>
        <translation>Videodatei</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Start stream</source>
        <translation>Übertragung starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Update cameras list</source>
        <translation>Kameraliste aktualisieren</translation>
    </message>
    <message>
        <source>The path of the video file cannot be read.</source>
        <translation>Der Pfad der Videodatei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>keine Bilder</translation>
    </message>
    <message>
        <source>%1 frames/s, %2x%3</source>
        <translation>%1 Bilder/s, %2x%3</translation>
    </message>
    <message>
        <source>Camera emulation does not support the size %1x%2. The largest one is %3x%3.</source>
        <translation>Die Kameraemulation unterstützt die Größe %1x%2 nicht. Die größte ist %3x%3.</translation>
    </message>
</context>
<context>
    <name>CompassControls</name>
    <message>
        <source>Compass</source>
        <translation>Kompass</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
</context>
<context>
    <name>CoordinateControls</name>
    <message>
        <source>Coordinate</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
</context>
<context>
    <name>CurrentPosition</name>
    <message>
        <source>Current Position</source>
        <translation>Aktuelle Position</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
</context>
<context>
    <name>DeviceRotationButtons</name>
    <message>
        <source>Device rotation</source>
        <translation>Drehung des Geräts</translation>
    </message>
    <message>
        <source>X %1°, Y %2°, Z %3°</source>
        <translation>X %1°, Y %2°, Z %3°</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::EmulationManagementPlugin</name>
    <message>
        <source>Emulation Management</source>
        <translation>Emulationsverwaltung</translation>
    </message>
    <message>
        <source>Emulation Management…</source>
        <translation>Emulationsverwaltung…</translation>
    </message>
    <message>
        <source>Emulation management plugin</source>
        <translation>Emulationsverwaltung</translation>
    </message>
    <message>
        <source>The emulation management plugin cannot be used. Please, close the emulator if it is running and add %1 Emulator to the list of available devices in Qt Creator settings.</source>
        <translation>Die Emulationsverwaltung kann nicht verwendet werden. Bitte schließen Sie den Emulator, falls er läuft, und fügen Sie den Emulator für %1 in den Einstellungen von Qt Creator zur Liste der verfügbaren Geräte hinzu.</translation>
    </message>
    <message>
        <source>The emulation management plugin cannot be used. Please, close %1 and try to use &apos;Emulation management…&apos; again.</source>
        <translation>Die Emulationsverwaltung kann nicht verwendet werden. Bitte schließen Sie %1 und wählen Sie „Emulationsverwaltung…“ erneut.</translation>
    </message>
    <message>
        <source>Emulator connection is lost. Please, run %1 if it is needed and load the GPS-track again.</source>
        <translation>Die Verbindung zum Emulator ist verloren gegangen. Bitte starten Sie %1, falls nötig, und laden Sie den GPS-Track erneut.</translation>
    </message>
    <message>
        <source>Starting %1</source>
        <translation>%1 wird gestartet</translation>
    </message>
    <message>
        <source>%1 has not become ready within %2 minutes. Please, try to use &apos;Emulation management…&apos; again.</source>
        <translation>%1 ist nach %2 Minuten noch nicht bereit. Bitte wählen Sie „Emulationsverwaltung…“ erneut.</translation>
    </message>
    <message>
        <source>Checking the packages of %1</source>
        <translation>Die Pakete von %1 werden geprüft</translation>
    </message>
    <message>
        <source>Reading Track File</source>
        <translation>Trackdatei lesen</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::OpeningProgress</name>
    <message>
        <source>Opening Emulation Management</source>
        <translation>Emulationsverwaltung wird geöffnet</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::WarningDialog</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Do not show again</source>
        <translation>Nicht erneut anzeigen</translation>
    </message>
</context>
<context>
    <name>EmulationManagementPackagesChecker</name>
    <message>
        <source>Necessary packages not found on emulator!</source>
        <translation>Auf dem Emulator fehlen notwendige Pakete!</translation>
    </message>
    <message>
        <source>Packages is not installed: 
</source>
        <translation>Nicht installierte Pakete: 
</translation>
    </message>
</context>
<context>
    <name>EmulationManagementView</name>
    <message>
        <source>The sensors values will be reset using the smartphone 3D-model position. Do you want to continue?</source>
        <translation>Die Sensorwerte werden nach der Lage des 3D-Modells neu gesetzt. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Sensors Management</source>
        <translation>Sensorverwaltung</translation>
    </message>
    <message>
        <source>Sensors Values</source>
        <translation>Sensorwerte</translation>
    </message>
    <message>
        <source>Orientation Management</source>
        <translation>Geräteausrichtung</translation>
    </message>
    <message>
        <source>GPS Management</source>
        <translation>GPS-Verwaltung</translation>
    </message>
    <message>
        <source>Camera Management</source>
        <translation>Kameraverwaltung</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>GpsManagementPage</name>
    <message>
        <source>NMEA file cannot be read</source>
        <translation>Die NMEA-Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>, line: %1</source>
        <translation>, Zeile: %1</translation>
    </message>
    <message>
        <source>The loaded NMEA file has no temporal information. Thus you cannot play it at its own speed.</source>
        <translation>Die geladene NMEA-Datei enthält keine Zeitangaben und kann daher nicht mit eigener Geschwindigkeit abgespielt werden.</translation>
    </message>
    <message>
        <source>NMEA files (*.nmea)</source>
        <translation>NMEA-Dateien (*.nmea)</translation>
    </message>
    <message>
        <source>Open NMEA File</source>
        <translation>NMEA-Datei öffnen</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>NMEA file is larger than %1 MB</source>
        <translation>Die NMEA-Datei ist größer als %1 MB</translation>
    </message>
</context>
<context>
    <name>GyroscopeControls</name>
    <message>
        <source>Gyroscope</source>
        <translation>Gyroskop</translation>
    </message>
    <message>
        <source>deg/s</source>
        <translation>°/s</translation>
    </message>
</context>
<context>
    <name>HostCameraControls</name>
    <message>
        <source>Current values</source>
        <translation>Aktuelle Werte</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Framerate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Set settings</source>
        <translation>Einstellungen anwenden</translation>
    </message>
    <message>
        <source>Only sizes up to %1x%1 can be streamed.</source>
        <translation>Nur Größen bis %1x%1 können übertragen werden.</translation>
    </message>
</context>
<context>
    <name>LightControls</name>
    <message>
        <source>Light Sensor</source>
        <translation>Lichtsensor</translation>
    </message>
    <message>
        <source>lx</source>
        <translation>lx</translation>
    </message>
    <message>
        <source>Light level</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>MagneticFieldControls</name>
    <message>
        <source>Magnetic Field</source>
        <translation>Magnetfeld</translation>
    </message>
    <message>
        <source>μT</source>
        <translation>μT</translation>
    </message>
</context>
<context>
    <name>MagnetometerControls</name>
    <message>
        <source>Magnetometer</source>
        <translation>Magnetometer</translation>
    </message>
    <message>
        <source>μT</source>
        <translation>μT</translation>
    </message>
</context>
<context>
    <name>MessageBoxButtons</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>Eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>A number from %1 to %2 with at most %3 decimals after a point</source>
        <translation>Eine Zahl von %1 bis %2 mit höchstens %3 Stellen nach dem Punkt</translation>
    </message>
</context>
<context>
    <name>OrientationControls</name>
    <message>
        <source>Orientation Sensor</source>
        <translation>Ausrichtungssensor</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
</context>
<context>
    <name>ProximityControls</name>
    <message>
        <source>Proximity Sensor</source>
        <translation>Näherungssensor</translation>
    </message>
    <message>
        <source>Reflectance</source>
        <translation>Reflexionsgrad</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Nah</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Fern</translation>
    </message>
</context>
<context>
    <name>ResultingValues</name>
    <message>
        <source>Resulting values</source>
        <translation>Resultierende Werte</translation>
    </message>
    <message>
        <source>Accelerometer (m/s²)</source>
        <translation>Beschleunigungssensor (m/s²)</translation>
    </message>
    <message>
        <source>Gyroscope (°/s)</source>
        <translation>Gyroskop (°/s)</translation>
    </message>
    <message>
        <source>Magnetometer (μT)</source>
        <translation>Magnetometer (μT)</translation>
    </message>
</context>
<context>
    <name>RotationSensorControls</name>
    <message>
        <source>Rotation Sensor</source>
        <translation>Rotationssensor</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
</context>
<context>
    <name>SensorsManagementPage</name>
    <message>
        <source>Accelerometer</source>
        <translation>Beschleunigungssensor</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Kompass</translation>
    </message>
    <message>
        <source>Orientation Sensor</source>
        <translation>Ausrichtungssensor</translation>
    </message>
    <message>
        <source>Magnetometer</source>
        <translation>Magnetometer</translation>
    </message>
    <message>
        <source>Gyroscope</source>
        <translation>Gyroskop</translation>
    </message>
    <message>
        <source>Light Sensor</source>
        <translation>Lichtsensor</translation>
    </message>
    <message>
        <source>Proximity Sensor</source>
        <translation>Näherungssensor</translation>
    </message>
    <message>
        <source>Tap Sensor</source>
        <translation>Tippsensor</translation>
    </message>
    <message>
        <source>The sensor configuration has been changed. Apply or discard changes?</source>
        <translation>Die Sensorkonfiguration wurde geändert. Änderungen anwenden oder verwerfen?</translation>
    </message>
    <message>
        <source>After applying changes, all applications retrieving data from sensors must be restarted.</source>
        <translation>Nach dem Anwenden der Änderungen müssen alle Anwendungen, die Sensordaten abrufen, neu gestartet werden.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>SensorsValuesPage</name>
    <message>
        <source>Reset values</source>
        <translation>Werte zurücksetzen</translation>
    </message>
</context>
<context>
    <name>SmartphoneModelArea</name>
    <message>
        <source>Arrow keys turn about X and Z, with Shift about Y. Hold Ctrl to move.</source>
        <translation>Pfeiltasten drehen um X und Z, mit der Umschalttaste um Y. Zum Bewegen Strg gedrückt halten.</translation>
    </message>
    <message>
        <source>Drag or press arrow keys to move along X and Y, roll the wheel for Z.</source>
        <translation>Ziehen oder Pfeiltasten bewegen entlang X und Y, das Mausrad entlang Z.</translation>
    </message>
</context>
<context>
    <name>SmartphoneModelPage</name>
    <message>
        <source>Rotation</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>X-Rot</source>
        <translation>X-Drehung</translation>
    </message>
    <message>
        <source>Y-Rot</source>
        <translation>Y-Drehung</translation>
    </message>
    <message>
        <source>Z-Rot</source>
        <translation>Z-Drehung</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
</context>
<context>
    <name>TapControls</name>
    <message>
        <source>Tap Sensor</source>
        <translation>Tippsensor</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
</context>
<context>
    <name>TrackControls</name>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Use own track speed</source>
        <translation>Eigene Geschwindigkeit des Tracks</translation>
    </message>
    <message>
        <source>Loop track</source>
        <translation>Track wiederholen</translation>
    </message>
</context>
<context>
    <name>TrackFileRow</name>
    <message>
        <source>Track file</source>
        <translation>Trackdatei</translation>
    </message>
    <message>
        <source>Reading the track file</source>
        <translation>Lesen der Trackdatei</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open NMEA File</source>
        <translation>NMEA-Datei öffnen</translation>
    </message>
</context>
<context>
    <name>TrackProgress</name>
    <message>
        <source>Track progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>TrackTable</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Track points</source>
        <translation>Trackpunkte</translation>
    </message>
</context>
<context>
    <name>nmea-parsing</name>
    <message>
        <source>NMEA file has a position at &quot;%1&quot;, which is not a time</source>
        <translation>Die NMEA-Datei hat eine Position mit ungültiger Zeit „%1“</translation>
    </message>
    <message>
        <source>NMEA file is empty</source>
        <translation>Die NMEA-Datei ist leer</translation>
    </message>
    <message>
        <source>Incorrect NMEA file</source>
        <translation>Fehlerhafte NMEA-Datei</translation>
    </message>
    <message>
        <source>NMEA file has only empty lines</source>
        <translation>Die NMEA-Datei hat nur leere Zeilen</translation>
    </message>
    <message>
        <source>NMEA file has incorrect points format.
Supported formats: GPRMC, GPGGA, GPGLL, GPWPL.</source>
        <translation>Die Punkte der NMEA-Datei haben ein falsches Format.
Unterstützte Formate: GPRMC, GPGGA, GPGLL, GPWPL.</translation>
    </message>
    <message>
        <source>NMEA file has more than %1 points</source>
        <translation>Die NMEA-Datei hat mehr als %1 Punkte</translation>
    </message>
</context>
</TS>
