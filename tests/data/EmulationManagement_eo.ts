<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="eo" sourcelanguage="en">
<context>
    <name>EmulationManagement::Internal::EmulationManagementPlugin</name>
    <message>
        <source>Emulation Management</source>
        <translation>Regado de imitado</translation>
    </message>
</context>
</TS>
