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
        <translation>нет изображений</translation>
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
</context>
<context>
    <name>EmulationManagement::Internal::OpeningProgress</name>
    <message>
        <source>Opening Emulation Management</source>
        <translation>Открытие управления эмуляцией</translation>
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
        <translation>Передавать можно только размеры до %1x%1.</translation>
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
        <translation>Отменить</translation>
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
        <source>Arrow keys turn about X and Z, with Shift about Y. Hold Ctrl to move.</source>
        <translation>Стрелки поворачивают вокруг X и Z, с Shift — вокруг Y. Для перемещения удерживайте Ctrl.</translation>
    </message>
    <message>
        <source>Drag or press arrow keys to move along X and Y, roll the wheel for Z.</source>
        <translation>Перетаскивание и стрелки перемещают вдоль X и Y, колесо мыши — вдоль Z.</translation>
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
        <translation>Неверный файл NMEA</translation>
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
