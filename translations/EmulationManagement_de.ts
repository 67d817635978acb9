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
    <name>EmulationManagement::Internal::CallLogModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::CallTexts</name>
    <message>
        <source>%1… (%2 characters, which the log does not keep)</source>
        <translation>%1… (%2 Zeichen, nicht im Protokoll gespeichert)</translation>
    </message>
    <message>
        <source>lost with the connection</source>
        <translation>bei Verbindungsabbruch verloren</translation>
    </message>
    <message>
        <source>not sent, because the link was down</source>
        <translation>nicht gesendet, da keine Verbindung</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::CameraPlayback</name>
    <message>
        <source>There is no video file &quot;%1&quot;.</source>
        <translation>Die Videodatei „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The video file &quot;%1&quot; cannot be streamed.</source>
        <translation>Die Videodatei „%1“ kann nicht übertragen werden.</translation>
    </message>
    <message>
        <source>There is no camera &quot;%1&quot;.</source>
        <translation>Die Kamera „%1“ wurde nicht gefunden.</translation>
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
        <translation>Trackdatei wird gelesen</translation>
    </message>
    <message>
        <source>camera: %1 x %2 pixels, %3 frames a second</source>
        <translation>Kamera: %1 x %2 Pixel, %3 Bilder pro Sekunde</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::EmulationOutputPane</name>
    <message>
        <source>Emulation</source>
        <translation>Emulation</translation>
    </message>
    <message>
        <source>Save What the Log Holds as a Recording…</source>
        <translation>Inhalt des Protokolls als Aufzeichnung speichern…</translation>
    </message>
    <message>
        <source>Calls of the emulator</source>
        <translation>Aufrufe des Emulators</translation>
    </message>
    <message>
        <source>%L1 calls, %L2 refused, %L3 lost, %L4 not sent; %L5/s; median %L6 ms, 99 % %L7 ms</source>
        <translation>Aufrufe: %L1, abgelehnt: %L2, verloren: %L3, nicht gesendet: %L4; %L5/s; Median: %L6 ms, 99 %: %L7 ms</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy as CSV</source>
        <translation>Als CSV kopieren</translation>
    </message>
    <message>
        <source>Copy as emulationctl Commands</source>
        <translation>Als emulationctl-Befehle kopieren</translation>
    </message>
    <message>
        <source>Save Selection as a Recording…</source>
        <translation>Auswahl als Aufzeichnung speichern…</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::MethodArguments</name>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>an array of points, each an array of latitude, longitude, altitude and interval</source>
        <translation>ein Array von Punkten (je ein Array aus Breitengrad, Längengrad, Höhe und Intervall)</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>%1 has another number of arguments: %2</source>
        <translation>%1 hat eine andere Anzahl von Argumenten: %2</translation>
    </message>
    <message>
        <source>%1 of %2 must be %3, not %4</source>
        <translation>%1 von %2 muss %3 sein, nicht %4</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::MoveButton</name>
    <message>
        <source>Move to…</source>
        <translation>Verschieben nach…</translation>
    </message>
    <message>
        <source>Copy a recording or a track to another place, to pass it on</source>
        <translation>Eine Aufzeichnung oder einen Track an einen anderen Ort kopieren, um sie weiterzugeben</translation>
    </message>
    <message>
        <source>Move a Recording or a Track</source>
        <translation>Aufzeichnung oder Track verschieben</translation>
    </message>
    <message>
        <source>Recordings and tracks (*%1 *.nmea)</source>
        <translation>Aufzeichnungen und Tracks (*%1 *.nmea)</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Verschieben nach</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All positions are moved so that the first one lies there.</source>
        <translation>Alle Positionen werden so verschoben, dass die erste dort liegt.</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>Breitengrad:</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>Längengrad:</translation>
    </message>
    <message>
        <source>Save the Moved Copy</source>
        <translation>Verschobene Kopie speichern</translation>
    </message>
    <message>
        <source>The moved copy is &quot;%1&quot;.</source>
        <translation>Die verschobene Kopie ist „%1“.</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; was not written. %2</source>
        <translation>Die Kopie „%1“ wurde nicht geschrieben. %2</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::MovedCopy</name>
    <message>
        <source>The file is neither a recording nor a track.</source>
        <translation>Die Datei ist weder eine Aufzeichnung noch ein Track.</translation>
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
    <name>EmulationManagement::Internal::PlayButton</name>
    <message>
        <source>Play…</source>
        <translation>Abspielen…</translation>
    </message>
    <message>
        <source>Play a Recording…</source>
        <translation>Aufzeichnung abspielen…</translation>
    </message>
    <message>
        <source>Play a Recording</source>
        <translation>Aufzeichnung abspielen</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; cannot be played. %2</source>
        <translation>Die Aufzeichnung „%1“ kann nicht abgespielt werden. %2</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::PlaybackBar</name>
    <message>
        <source>Send the Next Call</source>
        <translation>Nächsten Aufruf senden</translation>
    </message>
    <message>
        <source>Time of the recording</source>
        <translation>Zeit der Aufzeichnung</translation>
    </message>
    <message>
        <source>%L1x</source>
        <comment>speed</comment>
        <translation>%L1x</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Wait for the Link</source>
        <translation>Auf Verbindung warten</translation>
    </message>
    <message>
        <source>Go on when a lost link is there again, instead of stopping</source>
        <translation>Bei Verbindungsabbruch nicht anhalten, sondern fortfahren, sobald die Verbindung wieder besteht</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>Sensoren</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Stop and Close the Recording</source>
        <translation>Anhalten und Aufzeichnung schließen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>%L1 sent, %L2 refused, %L3 lost, latest %L4 ms</source>
        <translation>%L1 gesendet, %L2 abgelehnt, %L3 verloren, max. %L4 ms zu spät</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Waiting for the link</source>
        <translation>Warten auf die Verbindung</translation>
    </message>
    <message>
        <source>Stopped, because the link is down</source>
        <translation>Beendet, weil die Verbindung unterbrochen ist</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::RecordButton</name>
    <message>
        <source>Stop Recording</source>
        <translation>Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>Record…</source>
        <translation>Aufzeichnen…</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Aufzeichnung in %1</translation>
    </message>
    <message>
        <source>Record what is sent to the emulator</source>
        <translation>Aufzeichnen, was an den Emulator gesendet wird</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Aufzeichnung „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; has %L2 calls.</source>
        <translation>Aufrufe in der Aufzeichnung „%1“: %L2.</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; is incomplete: %2</source>
        <translation>Die Aufzeichnung „%1“ ist unvollständig: %2</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::Recording</name>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Line %1 is incomplete and was left out.</source>
        <translation>Zeile %1 ist unvollständig und wurde ausgelassen.</translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation>Zeile %1: %2.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>this is not the header of a recording, which has the format &quot;%1&quot;</source>
        <translation>das ist nicht der Kopf einer Aufzeichnung im Format „%1“</translation>
    </message>
    <message>
        <source>the version %1 is later than %2, the last one that is known</source>
        <translation>die Version %1 ist neuer als die letzte bekannte Version %2</translation>
    </message>
    <message>
        <source>the version must be %1</source>
        <translation>die Version muss %1 sein</translation>
    </message>
    <message>
        <source>the unit of time must be &quot;ms&quot;</source>
        <translation>die Zeiteinheit muss „ms“ sein</translation>
    </message>
    <message>
        <source>the start must be a date and a time of ISO 8601</source>
        <translation>„start“ muss Datum und Uhrzeit nach ISO 8601 sein</translation>
    </message>
    <message>
        <source>this is not a JSON object</source>
        <translation>das ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>„%1“ gehört nicht zu %2</translation>
    </message>
    <message>
        <source>&quot;after&quot; must be a number of milliseconds, not below 0</source>
        <translation>„after“ muss eine Anzahl von Millisekunden sein, nicht kleiner als 0</translation>
    </message>
    <message>
        <source>the time is too long</source>
        <translation>die Zeit ist zu lang</translation>
    </message>
    <message>
        <source>the service &quot;%1&quot; is not one of %2</source>
        <translation>der Dienst „%1“ gehört nicht zu %2</translation>
    </message>
    <message>
        <source>the service %1 has no method &quot;%2&quot;</source>
        <translation>der Dienst %1 hat keine Methode „%2“</translation>
    </message>
    <message>
        <source>&quot;arguments&quot; must be an array</source>
        <translation>„arguments“ muss ein Array sein</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::RecordingFiles</name>
    <message>
        <source>Recordings (*%1)</source>
        <translation>Aufzeichnungen (*%1)</translation>
    </message>
    <message>
        <source>Tracks (*%1)</source>
        <translation>Tracks (*%1)</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; was not saved: %2</source>
        <translation>Die Aufzeichnung „%1“ wurde nicht gespeichert: %2</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; has %L2 calls.</source>
        <translation>Aufrufe in der Aufzeichnung „%1“: %L2.</translation>
    </message>
    <message>
        <source>%L1 were left out, because they were not sent or the log does not keep all of them.</source>
        <translation>Ausgelassen: %L1 (nicht gesendet oder nicht vollständig im Protokoll).</translation>
    </message>
    <message>
        <source>Save as a Recording</source>
        <translation>Als Aufzeichnung speichern</translation>
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
        <translation>Die Sensorwerte werden anhand der Lage des 3D-Modells neu gesetzt. Möchten Sie fortfahren?</translation>
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
    <message>
        <source>A recording is playing. This window sends its values again when the recording ends.</source>
        <translation>Eine Aufzeichnung wird abgespielt. Wenn sie endet, sendet dieses Fenster seine Werte erneut.</translation>
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
        <translation>Eine Zahl von %1 bis %2 mit Dezimalpunkt und höchstens %3 Nachkommastellen</translation>
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
    <name>SensorAxes</name>
    <message>
        <source>Sensor axes</source>
        <translation>Sensor-Achsen</translation>
    </message>
    <message>
        <source>Gravity g, field B</source>
        <translation>Feld B, Schwere g</translation>
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
        <source>Drag or press arrow keys to move along X and Y, roll the wheel for Z.</source>
        <translation>Ziehen und Pfeiltasten bewegen entlang X und Y, das Mausrad entlang Z.</translation>
    </message>
    <message>
        <source>Drag to turn, double-click to set upright. Arrow keys turn about X and Z, with Shift about Y. Hold Ctrl to move.</source>
        <translation>Ziehen dreht, Doppelklick stellt aufrecht. Pfeiltasten drehen um X und Z, mit der Umschalttaste um Y. Zum Bewegen Strg gedrückt halten.</translation>
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
    <message>
        <source>Arrow keys turn it, with Ctrl they move it</source>
        <translation>Pfeiltasten drehen es, mit Strg bewegen sie es</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
</context>
<context>
    <name>SmartphoneScene</name>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; cannot be read.</source>
        <translation>Das Gerät wird als Quader dargestellt, weil die Datei „%1“ nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; is too large to draw.</source>
        <translation>Das Gerät wird als Quader dargestellt, weil die Datei „%1“ für die Darstellung zu groß ist.</translation>
    </message>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; contains no mesh.</source>
        <translation>Das Gerät wird als Quader dargestellt, weil die Datei „%1“ kein Polygonnetz enthält.</translation>
    </message>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; contains no image.</source>
        <translation>Das Gerät wird als Quader dargestellt, weil die Datei „%1“ kein Bild enthält.</translation>
    </message>
</context>
<context>
    <name>StreamPreviewArea</name>
    <message>
        <source>Preview of the stream</source>
        <translation>Vorschau der Übertragung</translation>
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
        <translation>Trackdatei wird gelesen</translation>
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
    <name>TrackShape</name>
    <message>
        <source>Shape of the track</source>
        <translation>Verlauf des Tracks</translation>
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
