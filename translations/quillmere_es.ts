<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>FrmReminders</name>
    <message>
        <source>Reminders</source>
        <translation>Recordatorios</translation>
    </message>
    <message>
        <source>Major periods</source>
        <translation>Periodos mayores</translation>
    </message>
    <message>
        <source>Minor periods</source>
        <translation>Periodos menores</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Salida y puesta del sol</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Todos los días</translation>
    </message>
    <message>
        <source>Best days only</source>
        <translation>Solo los mejores días</translation>
    </message>
    <message>
        <source>Tell me before</source>
        <translation>Avisarme antes de</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Lugar:</translation>
    </message>
    <message>
        <source>Minutes before:</source>
        <translation>Minutos antes:</translation>
    </message>
</context>
<context>
    <name>ReminderService</name>
    <message>
        <source>Major period at %1</source>
        <translation>Periodo mayor a las %1</translation>
    </message>
    <message>
        <source>Minor period at %1</source>
        <translation>Periodo menor a las %1</translation>
    </message>
    <message>
        <source>Sunrise at %1</source>
        <translation>Salida del sol a las %1</translation>
    </message>
    <message>
        <source>Sunset at %1</source>
        <translation>Puesta del sol a las %1</translation>
    </message>
    <message>
        <source>%1: from %2 to %3</source>
        <translation>%1: de %2 a %3</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bueno</translation>
    </message>
    <message>
        <source>V.Good</source>
        <translation>Muy bueno</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Óptimo</translation>
    </message>
    <message>
        <source>Day rating: %1</source>
        <translation>Valoración del día: %1</translation>
    </message>
</context>
<context>
    <name>ReminderTray</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Quillmere: reminders on</source>
        <translation>Quillmere: recordatorios activados</translation>
    </message>
</context>
</TS>
