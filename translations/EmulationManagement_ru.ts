<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AccelerometerControls</name>
    <message>
        <source>Accelerometer</source>
        <translation>Акселерометр</translation>
    </message>
    <message>
        <source>m/s²</source>
        <translation>м/с²</translation>
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
        <translation>Калибровка</translation>
    </message>
</context>
<context>
    <name>CameraManagementPage</name>
    <message>
        <source>Could not determine the video codec of the video file. Supported codecs: VP8 and VP9.</source>
        <translation>Не удалось определить видеокодек файла. Поддерживаемые кодеки: VP8 и VP9.</translation>
    </message>
    <message>
        <source>Camera emulation does not support %1. Supported codecs: VP8 and VP9.</source>
        <translation>Эмуляция камеры не поддерживает %1. Поддерживаемые кодеки: VP8 и VP9.</translation>
    </message>
    <message>
        <source>Open Video File</source>
        <translation>Открыть видеофайл</translation>
    </message>
    <message>
        <source>Video files (*.webm *.mkv)</source>
        <translation>Видеофайлы (*.webm *.mkv)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Host camera</source>
        <translation>Камера компьютера</translation>
    </message>
    <message>
        <source>Video file</source>
        <translation>Видеофайл</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Start stream</source>
        <translation>Начать трансляцию</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Update cameras list</source>
        <translation>Обновить список камер</translation>
    </message>
    <message>
        <source>The path of the video file cannot be read.</source>
        <translation>Не удаётся прочитать путь к видеофайлу.</translation>
    </message>
    <message>
        <source>no pictures</source>
        <translation>нет изображения</translation>
    </message>
    <message>
        <source>%1 frames/s, %2x%3</source>
        <translation>%1 кадр/с, %2x%3</translation>
    </message>
    <message>
        <source>Camera emulation does not support the size %1x%2. The largest one is %3x%3.</source>
        <translation>Эмуляция камеры не поддерживает размер %1x%2. Наибольший размер: %3x%3.</translation>
    </message>
</context>
<context>
    <name>CompassControls</name>
    <message>
        <source>Compass</source>
        <translation>Компас</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Азимут</translation>
    </message>
</context>
<context>
    <name>CoordinateControls</name>
    <message>
        <source>Coordinate</source>
        <translation>Координаты</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Широта</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Долгота</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Задать</translation>
    </message>
</context>
<context>
    <name>CurrentPosition</name>
    <message>
        <source>Current Position</source>
        <translation>Текущее положение</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Широта</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Долгота</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Высота</translation>
    </message>
</context>
<context>
    <name>DeviceRotationButtons</name>
    <message>
        <source>Device rotation</source>
        <translation>Поворот устройства</translation>
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
        <translation>Время</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Служба</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Метод</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Аргументы</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Ответ</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>мс</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::CallTexts</name>
    <message>
        <source>%1… (%2 characters, which the log does not keep)</source>
        <translation>%1… (символов: %2, в журнале не хранятся)</translation>
    </message>
    <message>
        <source>lost with the connection</source>
        <translation>потерян при обрыве соединения</translation>
    </message>
    <message>
        <source>not sent, because the link was down</source>
        <translation>не отправлен: не было соединения</translation>
    </message>
    <message>
        <source>done</source>
        <translation>выполнен</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::CameraPlayback</name>
    <message>
        <source>There is no video file &quot;%1&quot;.</source>
        <translation>Видеофайл «%1» не найден.</translation>
    </message>
    <message>
        <source>The video file &quot;%1&quot; cannot be streamed.</source>
        <translation>Не удалось начать трансляцию видеофайла «%1».</translation>
    </message>
    <message>
        <source>There is no camera &quot;%1&quot;.</source>
        <translation>Камера «%1» не найдена.</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::EmulationManagementPlugin</name>
    <message>
        <source>Emulation Management</source>
        <translation>Управление эмуляцией</translation>
    </message>
    <message>
        <source>Emulation Management…</source>
        <translation>Управление эмуляцией…</translation>
    </message>
    <message>
        <source>Emulation management plugin</source>
        <translation>Модуль управления эмуляцией</translation>
    </message>
    <message>
        <source>The emulation management plugin cannot be used. Please, close the emulator if it is running and add %1 Emulator to the list of available devices in Qt Creator settings.</source>
        <translation>Модуль управления эмуляцией использовать нельзя. Закройте эмулятор, если он запущен, и добавьте эмулятор %1 в список доступных устройств в настройках Qt Creator.</translation>
    </message>
    <message>
        <source>The emulation management plugin cannot be used. Please, close %1 and try to use &apos;Emulation management…&apos; again.</source>
        <translation>Модуль управления эмуляцией использовать нельзя. Закройте %1 и выберите «Управление эмуляцией…» ещё раз.</translation>
    </message>
    <message>
        <source>Emulator connection is lost. Please, run %1 if it is needed and load the GPS-track again.</source>
        <translation>Соединение с эмулятором потеряно. При необходимости запустите %1 и загрузите GPS-трек ещё раз.</translation>
    </message>
    <message>
        <source>Starting %1</source>
        <translation>Запуск %1</translation>
    </message>
    <message>
        <source>%1 has not become ready within %2 minutes. Please, try to use &apos;Emulation management…&apos; again.</source>
        <translation>%1 не готов к работе спустя %2 мин. Попробуйте снова выбрать «Управление эмуляцией…».</translation>
    </message>
    <message>
        <source>Checking the packages of %1</source>
        <translation>Проверка пакетов %1</translation>
    </message>
    <message>
        <source>Reading Track File</source>
        <translation>Чтение файла трека</translation>
    </message>
    <message>
        <source>camera: %1 x %2 pixels, %3 frames a second</source>
        <translation>камера: %1 x %2 пикс., %3 кадр/с</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::EmulationOutputPane</name>
    <message>
        <source>Emulation</source>
        <translation>Эмуляция</translation>
    </message>
    <message>
        <source>Save What the Log Holds as a Recording…</source>
        <translation>Сохранить содержимое журнала как запись…</translation>
    </message>
    <message>
        <source>Calls of the emulator</source>
        <translation>Вызовы эмулятора</translation>
    </message>
    <message>
        <source>%L1 calls, %L2 refused, %L3 lost, %L4 not sent; %L5/s; median %L6 ms, 99 % %L7 ms</source>
        <translation>Вызовов: %L1, отклонено: %L2, потеряно: %L3, не отправлено: %L4; %L5/с; медиана: %L6 мс, 99 %: %L7 мс</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy as CSV</source>
        <translation>Копировать как CSV</translation>
    </message>
    <message>
        <source>Copy as emulationctl Commands</source>
        <translation>Копировать как команды emulationctl</translation>
    </message>
    <message>
        <source>Save Selection as a Recording…</source>
        <translation>Сохранить выделенное как запись…</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::MethodArguments</name>
    <message>
        <source>a whole number</source>
        <translation>целое число</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>число</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true или false</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>an array of points, each an array of latitude, longitude, altitude and interval</source>
        <translation>массив точек (каждая — массив из широты, долготы, высоты и интервала)</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>одно из %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>от %1 до %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>не менее %1</translation>
    </message>
    <message>
        <source>%1 has another number of arguments: %2</source>
        <translation>у %1 другое число аргументов: %2</translation>
    </message>
    <message>
        <source>%1 of %2 must be %3, not %4</source>
        <translation>%1 в %2: ожидается %3, а не %4</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::MoveButton</name>
    <message>
        <source>Move to…</source>
        <translation>Переместить в…</translation>
    </message>
    <message>
        <source>Copy a recording or a track to another place, to pass it on</source>
        <translation>Скопировать запись или трек в другое место на карте, чтобы передать другим</translation>
    </message>
    <message>
        <source>Move a Recording or a Track</source>
        <translation>Перемещение записи или трека</translation>
    </message>
    <message>
        <source>Recordings and tracks (*%1 *.nmea)</source>
        <translation>Записи и треки (*%1 *.nmea)</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Переместить в</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>All positions are moved so that the first one lies there.</source>
        <translation>Все координаты смещаются так, чтобы первая оказалась здесь.</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>Широта:</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>Долгота:</translation>
    </message>
    <message>
        <source>Save the Moved Copy</source>
        <translation>Сохранить перемещённую копию</translation>
    </message>
    <message>
        <source>The moved copy is &quot;%1&quot;.</source>
        <translation>Перемещённая копия: «%1».</translation>
    </message>
    <message>
        <source>The copy &quot;%1&quot; was not written. %2</source>
        <translation>Копия «%1» не записана. %2</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::MovedCopy</name>
    <message>
        <source>The file is neither a recording nor a track.</source>
        <translation>Файл не является ни записью, ни треком.</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::OpeningProgress</name>
    <message>
        <source>Opening Emulation Management</source>
        <translation>Открытие окна управления эмуляцией</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::PlayButton</name>
    <message>
        <source>Play…</source>
        <translation>Воспроизвести…</translation>
    </message>
    <message>
        <source>Play a Recording…</source>
        <translation>Воспроизвести запись…</translation>
    </message>
    <message>
        <source>Play a Recording</source>
        <translation>Воспроизвести запись</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; cannot be played. %2</source>
        <translation>Не удалось воспроизвести запись «%1». %2</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::PlaybackBar</name>
    <message>
        <source>Send the Next Call</source>
        <translation>Отправить следующий вызов</translation>
    </message>
    <message>
        <source>Time of the recording</source>
        <translation>Время записи</translation>
    </message>
    <message>
        <source>%L1x</source>
        <comment>speed</comment>
        <translation>%L1x</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Зациклить</translation>
    </message>
    <message>
        <source>Wait for the Link</source>
        <translation>Ждать соединения</translation>
    </message>
    <message>
        <source>Go on when a lost link is there again, instead of stopping</source>
        <translation>При обрыве соединения не останавливаться, а продолжить после его восстановления</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>Датчики</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Местоположение</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Stop and Close the Recording</source>
        <translation>Остановить и закрыть запись</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>%L1 sent, %L2 refused, %L3 lost, latest %L4 ms</source>
        <translation>отправлено %L1, отклонено %L2, потеряно %L3, опоздание до %L4 мс</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Waiting for the link</source>
        <translation>Ожидание соединения</translation>
    </message>
    <message>
        <source>Stopped, because the link is down</source>
        <translation>Остановлено: нет соединения</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::RecordButton</name>
    <message>
        <source>Stop Recording</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>Record…</source>
        <translation>Записать…</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Запись в %1</translation>
    </message>
    <message>
        <source>Record what is sent to the emulator</source>
        <translation>Записывать то, что отправляется в эмулятор</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; cannot be written: %2</source>
        <translation>Не удаётся сохранить запись «%1»: %2</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; has %L2 calls.</source>
        <translation>Вызовов в записи «%1»: %L2.</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; is incomplete: %2</source>
        <translation>Запись «%1» неполная: %2</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::Recording</name>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Не удалось прочитать файл: %1</translation>
    </message>
    <message>
        <source>Line %1 is incomplete and was left out.</source>
        <translation>Строка %1 неполная и пропущена.</translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation>Строка %1: %2.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>this is not the header of a recording, which has the format &quot;%1&quot;</source>
        <translation>это не заголовок записи в формате «%1»</translation>
    </message>
    <message>
        <source>the version %1 is later than %2, the last one that is known</source>
        <translation>версия %1 новее последней известной версии %2</translation>
    </message>
    <message>
        <source>the version must be %1</source>
        <translation>версия должна быть %1</translation>
    </message>
    <message>
        <source>the unit of time must be &quot;ms&quot;</source>
        <translation>единицей времени должна быть «ms»</translation>
    </message>
    <message>
        <source>the start must be a date and a time of ISO 8601</source>
        <translation>«start» — не дата и время в формате ISO 8601</translation>
    </message>
    <message>
        <source>this is not a JSON object</source>
        <translation>это не объект JSON</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>«%1» — не одно из %2</translation>
    </message>
    <message>
        <source>&quot;after&quot; must be a number of milliseconds, not below 0</source>
        <translation>«after» должно быть числом миллисекунд не меньше 0</translation>
    </message>
    <message>
        <source>the time is too long</source>
        <translation>слишком большое время</translation>
    </message>
    <message>
        <source>the service &quot;%1&quot; is not one of %2</source>
        <translation>служба «%1» — не одна из %2</translation>
    </message>
    <message>
        <source>the service %1 has no method &quot;%2&quot;</source>
        <translation>у службы %1 нет метода «%2»</translation>
    </message>
    <message>
        <source>&quot;arguments&quot; must be an array</source>
        <translation>«arguments» должно быть массивом</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::RecordingFiles</name>
    <message>
        <source>Recordings (*%1)</source>
        <translation>Записи (*%1)</translation>
    </message>
    <message>
        <source>Tracks (*%1)</source>
        <translation>Треки (*%1)</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; was not saved: %2</source>
        <translation>Запись «%1» не сохранена: %2</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; has %L2 calls.</source>
        <translation>Вызовов в записи «%1»: %L2.</translation>
    </message>
    <message>
        <source>%L1 were left out, because they were not sent or the log does not keep all of them.</source>
        <translation>Пропущено: %L1 (не отправлены или хранятся в журнале не полностью).</translation>
    </message>
    <message>
        <source>Save as a Recording</source>
        <translation>Сохранить как запись</translation>
    </message>
</context>
<context>
    <name>EmulationManagement::Internal::WarningDialog</name>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Do not show again</source>
        <translation>Больше не показывать</translation>
    </message>
</context>
<context>
    <name>EmulationManagementPackagesChecker</name>
    <message>
        <source>Necessary packages not found on emulator!</source>
        <translation>В эмуляторе не найдены необходимые пакеты!</translation>
    </message>
    <message>
        <source>Packages is not installed: 
</source>
        <translation>Не установлены пакеты: 
</translation>
    </message>
</context>
<context>
    <name>EmulationManagementView</name>
    <message>
        <source>The sensors values will be reset using the smartphone 3D-model position. Do you want to continue?</source>
        <translation>Значения датчиков будут заменены в соответствии с положением 3D-модели смартфона. Продолжить?</translation>
    </message>
    <message>
        <source>Sensors Management</source>
        <translation>Управление датчиками</translation>
    </message>
    <message>
        <source>Sensors Values</source>
        <translation>Значения датчиков</translation>
    </message>
    <message>
        <source>Orientation Management</source>
        <translation>Ориентация</translation>
    </message>
    <message>
        <source>GPS Management</source>
        <translation>Управление GPS</translation>
    </message>
    <message>
        <source>Camera Management</source>
        <translation>Управление камерой</translation>
    </message>
    <message>
        <source>A recording is playing. This window sends its values again when the recording ends.</source>
        <translation>Воспроизводится запись. Когда она закончится, это окно снова отправит свои значения.</translation>
    </message>
</context>
<context>
    <name>ErrorMessageDialog</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
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
        <translation>Не удалось прочитать файл NMEA</translation>
    </message>
    <message>
        <source>, line: %1</source>
        <translation>, строка: %1</translation>
    </message>
    <message>
        <source>The loaded NMEA file has no temporal information. Thus you cannot play it at its own speed.</source>
        <translation>В загруженном файле NMEA нет данных о времени, поэтому его нельзя воспроизвести с собственной скоростью.</translation>
    </message>
    <message>
        <source>NMEA files (*.nmea)</source>
        <translation>Файлы NMEA (*.nmea)</translation>
    </message>
    <message>
        <source>Open NMEA File</source>
        <translation>Открыть файл NMEA</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Трек</translation>
    </message>
    <message>
        <source>NMEA file is larger than %1 MB</source>
        <translation>Файл NMEA больше %1 МБ</translation>
    </message>
</context>
<context>
    <name>GyroscopeControls</name>
    <message>
        <source>Gyroscope</source>
        <translation>Гироскоп</translation>
    </message>
    <message>
        <source>deg/s</source>
        <translation>°/с</translation>
    </message>
</context>
<context>
    <name>HostCameraControls</name>
    <message>
        <source>Current values</source>
        <translation>Текущие значения</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Framerate</source>
        <translation>Частота кадров</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Set settings</source>
        <translation>Применить настройки</translation>
    </message>
    <message>
        <source>Only sizes up to %1x%1 can be streamed.</source>
        <translation>Транслировать можно только размеры до %1x%1.</translation>
    </message>
</context>
<context>
    <name>LightControls</name>
    <message>
        <source>Light Sensor</source>
        <translation>Датчик освещённости</translation>
    </message>
    <message>
        <source>lx</source>
        <translation>лк</translation>
    </message>
    <message>
        <source>Light level</source>
        <translation>Освещённость</translation>
    </message>
</context>
<context>
    <name>MagneticFieldControls</name>
    <message>
        <source>Magnetic Field</source>
        <translation>Магнитное поле</translation>
    </message>
    <message>
        <source>μT</source>
        <translation>мкТл</translation>
    </message>
</context>
<context>
    <name>MagnetometerControls</name>
    <message>
        <source>Magnetometer</source>
        <translation>Магнитометр</translation>
    </message>
    <message>
        <source>μT</source>
        <translation>мкТл</translation>
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
        <translation>Применить</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не применять</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A whole number from %1 to %2</source>
        <translation>Целое число от %1 до %2</translation>
    </message>
    <message>
        <source>A number from %1 to %2 with at most %3 decimals after a point</source>
        <translation>Число от %1 до %2, не более %3 знаков после точки</translation>
    </message>
</context>
<context>
    <name>OrientationControls</name>
    <message>
        <source>Orientation Sensor</source>
        <translation>Датчик ориентации</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ориентация</translation>
    </message>
</context>
<context>
    <name>ProximityControls</name>
    <message>
        <source>Proximity Sensor</source>
        <translation>Датчик приближения</translation>
    </message>
    <message>
        <source>Reflectance</source>
        <translation>Отражение</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>Близко</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>Далеко</translation>
    </message>
</context>
<context>
    <name>ResultingValues</name>
    <message>
        <source>Resulting values</source>
        <translation>Итоговые значения</translation>
    </message>
    <message>
        <source>Accelerometer (m/s²)</source>
        <translation>Акселерометр (м/с²)</translation>
    </message>
    <message>
        <source>Gyroscope (°/s)</source>
        <translation>Гироскоп (°/с)</translation>
    </message>
    <message>
        <source>Magnetometer (μT)</source>
        <translation>Магнитометр (мкТл)</translation>
    </message>
</context>
<context>
    <name>RotationSensorControls</name>
    <message>
        <source>Rotation Sensor</source>
        <translation>Датчик вращения</translation>
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
        <translation>Оси датчиков</translation>
    </message>
    <message>
        <source>Gravity g, field B</source>
        <translation>Поле B, тяжесть g</translation>
    </message>
</context>
<context>
    <name>SensorsManagementPage</name>
    <message>
        <source>Accelerometer</source>
        <translation>Акселерометр</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Компас</translation>
    </message>
    <message>
        <source>Orientation Sensor</source>
        <translation>Датчик ориентации</translation>
    </message>
    <message>
        <source>Magnetometer</source>
        <translation>Магнитометр</translation>
    </message>
    <message>
        <source>Gyroscope</source>
        <translation>Гироскоп</translation>
    </message>
    <message>
        <source>Light Sensor</source>
        <translation>Датчик освещённости</translation>
    </message>
    <message>
        <source>Proximity Sensor</source>
        <translation>Датчик приближения</translation>
    </message>
    <message>
        <source>Tap Sensor</source>
        <translation>Датчик постукивания</translation>
    </message>
    <message>
        <source>The sensor configuration has been changed. Apply or discard changes?</source>
        <translation>Конфигурация датчиков изменена. Применить изменения или отказаться от них?</translation>
    </message>
    <message>
        <source>After applying changes, all applications retrieving data from sensors must be restarted.</source>
        <translation>После применения изменений нужно перезапустить все приложения, получающие данные от датчиков.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
</context>
<context>
    <name>SensorsValuesPage</name>
    <message>
        <source>Reset values</source>
        <translation>Сбросить значения</translation>
    </message>
</context>
<context>
    <name>SmartphoneModelArea</name>
    <message>
        <source>Drag or press arrow keys to move along X and Y, roll the wheel for Z.</source>
        <translation>Перетаскивание и стрелки перемещают вдоль X и Y, колесо мыши — вдоль Z.</translation>
    </message>
    <message>
        <source>Drag to turn, double-click to set upright. Arrow keys turn about X and Z, with Shift about Y. Hold Ctrl to move.</source>
        <translation>Перетаскивание поворачивает, двойной щелчок возвращает вертикальное положение. Стрелки поворачивают вокруг X и Z, с Shift — вокруг Y. Для перемещения удерживайте Ctrl.</translation>
    </message>
</context>
<context>
    <name>SmartphoneModelPage</name>
    <message>
        <source>Rotation</source>
        <translation>Вращение</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Перемещение</translation>
    </message>
    <message>
        <source>X-Rot</source>
        <translation>Поворот X</translation>
    </message>
    <message>
        <source>Y-Rot</source>
        <translation>Поворот Y</translation>
    </message>
    <message>
        <source>Z-Rot</source>
        <translation>Поворот Z</translation>
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
        <translation>Стрелки поворачивают его, с Ctrl — перемещают</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
</context>
<context>
    <name>SmartphoneScene</name>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; cannot be read.</source>
        <translation>Устройство показано как параллелепипед: не удалось прочитать файл «%1».</translation>
    </message>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; is too large to draw.</source>
        <translation>Устройство показано как параллелепипед: файл «%1» слишком велик для отображения.</translation>
    </message>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; contains no mesh.</source>
        <translation>Устройство показано как параллелепипед: в файле «%1» нет полигональной сетки.</translation>
    </message>
    <message>
        <source>The device is drawn as a box, because the file &quot;%1&quot; contains no image.</source>
        <translation>Устройство показано как параллелепипед: в файле «%1» нет изображения.</translation>
    </message>
</context>
<context>
    <name>StreamPreviewArea</name>
    <message>
        <source>Preview of the stream</source>
        <translation>Предпросмотр трансляции</translation>
    </message>
</context>
<context>
    <name>TapControls</name>
    <message>
        <source>Tap Sensor</source>
        <translation>Датчик постукивания</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
</context>
<context>
    <name>TrackControls</name>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Use own track speed</source>
        <translation>Собственная скорость трека</translation>
    </message>
    <message>
        <source>Loop track</source>
        <translation>Зациклить трек</translation>
    </message>
</context>
<context>
    <name>TrackFileRow</name>
    <message>
        <source>Track file</source>
        <translation>Файл трека</translation>
    </message>
    <message>
        <source>Reading the track file</source>
        <translation>Чтение файла трека</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Open NMEA File</source>
        <translation>Открыть файл NMEA</translation>
    </message>
</context>
<context>
    <name>TrackProgress</name>
    <message>
        <source>Track progress</source>
        <translation>Ход воспроизведения</translation>
    </message>
</context>
<context>
    <name>TrackShape</name>
    <message>
        <source>Shape of the track</source>
        <translation>Форма трека</translation>
    </message>
</context>
<context>
    <name>TrackTable</name>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Широта</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Долгота</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Track points</source>
        <translation>Точки трека</translation>
    </message>
</context>
<context>
    <name>nmea-parsing</name>
    <message>
        <source>NMEA file has a position at &quot;%1&quot;, which is not a time</source>
        <translation>В файле NMEA у точки неверное время «%1»</translation>
    </message>
    <message>
        <source>NMEA file is empty</source>
        <translation>Файл NMEA пуст</translation>
    </message>
    <message>
        <source>Incorrect NMEA file</source>
        <translation>Некорректный файл NMEA</translation>
    </message>
    <message>
        <source>NMEA file has only empty lines</source>
        <translation>В файле NMEA только пустые строки</translation>
    </message>
    <message>
        <source>NMEA file has incorrect points format.
Supported formats: GPRMC, GPGGA, GPGLL, GPWPL.</source>
        <translation>Точки в файле NMEA имеют неверный формат.
Поддерживаемые форматы: GPRMC, GPGGA, GPGLL, GPWPL.</translation>
    </message>
    <message>
        <source>NMEA file has more than %1 points</source>
        <translation>В файле NMEA больше %1 точек</translation>
    </message>
</context>
</TS>
