<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>FrmReminders</name>
    <message>
        <source>Reminders</source>
        <translation>Erinnerungen</translation>
    </message>
    <message>
        <source>Major periods</source>
        <translation>Hauptbeißzeiten</translation>
    </message>
    <message>
        <source>Minor periods</source>
        <translation>Nebenbeißzeiten</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Sonnenaufgang und -untergang</translation>
    </message>
    <message>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Jeden Tag</translation>
    </message>
    <message>
        <source>Best days only</source>
        <translation>Nur an den besten Tagen</translation>
    </message>
    <message>
        <source>Tell me before</source>
        <translation>Erinnern vor</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Minutes before:</source>
        <translation>Minuten vorher:</translation>
    </message>
</context>
<context>
    <name>ReminderService</name>
    <message>
        <source>Major period at %1</source>
        <translation>Hauptbeißzeit um %1</translation>
    </message>
    <message>
        <source>Minor period at %1</source>
        <translation>Nebenbeißzeit um %1</translation>
    </message>
    <message>
        <source>Sunrise at %1</source>
        <translation>Sonnenaufgang um %1</translation>
    </message>
    <message>
        <source>Sunset at %1</source>
        <translation>Sonnenuntergang um %1</translation>
    </message>
    <message>
        <source>%1: from %2 to %3</source>
        <translation>%1: von %2 bis %3</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mäßig</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>V.Good</source>
        <translation>Sehr gut</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Ausgezeichnet</translation>
    </message>
    <message>
        <source>Day rating: %1</source>
        <translation>Tageswertung: %1</translation>
    </message>
</context>
<context>
    <name>ReminderTray</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Quillmere: reminders on</source>
        <translation>Quillmere: Erinnerungen an</translation>
    </message>
</context>
</TS>
