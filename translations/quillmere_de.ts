<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>FrmCalendar</name>
    <message>
        <source> Previous Month </source>
        <translation> Voriger Monat </translation>
    </message>
    <message>
        <source> Next Month </source>
        <translation> Nächster Monat </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>    Sun            Mon           Tue            Wed          Thu             Fri             Sat</source>
        <translation>  So    Mo    Di    Mi    Do    Fr    Sa</translation>
    </message>
    <message>
        <source> Change the Year </source>
        <translation> Jahr wechseln </translation>
    </message>
    <message>
        <source>Daylight Hours</source>
        <translation>Tageslicht</translation>
    </message>
    <message>
        <source>Majors</source>
        <translation>Hauptphasen</translation>
    </message>
    <message>
        <source>Minors</source>
        <translation>Nebenphasen</translation>
    </message>
    <message>
        <source> Moon is due South/North </source>
        <translation> Mond steht im Süden/Norden </translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Unter</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Mond</translation>
    </message>
    <message>
        <source> Move the moment of the day </source>
        <translation> Die Tageszeit verschieben </translation>
    </message>
    <message>
        <source> Click to Reset Hour Bar </source>
        <translation> Klicken setzt die Stundenleiste zurück </translation>
    </message>
    <message>
        <source>&amp;DataBase</source>
        <translation>&amp;Datenbank</translation>
    </message>
    <message>
        <source>&amp;Yearly</source>
        <translation>&amp;Jahr</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>&amp;Funktionen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>@&amp;Glance</source>
        <translation>Auf einen &amp;Blick</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Time Formats</source>
        <translation>&amp;Zeitformate</translation>
    </message>
    <message>
        <source>&amp;Daylight Savings</source>
        <translation>&amp;Sommerzeit</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Normalzeit</translation>
    </message>
    <message>
        <source>&amp;Local Clock</source>
        <translation>&amp;Ortszeit</translation>
    </message>
    <message>
        <source>&amp;24-Hour Clock</source>
        <translation>&amp;24-Stunden-Uhr</translation>
    </message>
    <message>
        <source>&amp;Mouse</source>
        <translation>&amp;Maus</translation>
    </message>
    <message>
        <source>On &amp;Move</source>
        <translation>Beim &amp;Bewegen</translation>
    </message>
    <message>
        <source>On &amp;Click</source>
        <translation>Beim &amp;Klicken</translation>
    </message>
    <message>
        <source>&amp;PAngle</source>
        <translation>&amp;P-Winkel</translation>
    </message>
    <message>
        <source>Parallactic O&amp;ff</source>
        <translation>Parallaktisch &amp;aus</translation>
    </message>
    <message>
        <source>Parallactic O&amp;n</source>
        <translation>Parallaktisch &amp;ein</translation>
    </message>
    <message>
        <source>&amp;Reminders...</source>
        <translation>&amp;Erinnerungen...</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>&amp;Orte</translation>
    </message>
    <message>
        <source>&amp;Select A Location</source>
        <translation>Ort &amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Edit A Location</source>
        <translation>Ort &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Exit (%1)</source>
        <translation>Beenden (%1)</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>V.Good</source>
        <translation>Sehr gut</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mäßig</translation>
    </message>
    <message>
        <source>Day  %1   %2 days remain</source>
        <translation>Tag  %1   noch %2 Tage</translation>
    </message>
    <message>
        <source> Click to Show Parallactic Angle View </source>
        <translation> Klicken zeigt die Ansicht mit parallaktischem Winkel </translation>
    </message>
    <message>
        <source>Time Zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Location #%1 </source>
        <translation>Ort Nr. %1 </translation>
    </message>
    <message>
        <source>The settings cannot be saved to
%1
(the file or its folder is not writable).

Close Quillmere without saving them? Choose No to keep it open while you make the folder writable.</source>
        <translation>Die Einstellungen können nicht gespeichert werden in
%1
(die Datei oder ihr Ordner ist schreibgeschützt).

Quillmere schließen, ohne sie zu speichern? Wählen Sie Nein, um das Programm offen zu lassen, während Sie den Ordner beschreibbar machen.</translation>
    </message>
</context>
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
    <name>PlainTexts</name>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Unter</translation>
    </message>
    <message>
        <source>Moon is Up</source>
        <translation>Mond sichtbar</translation>
    </message>
    <message>
        <source>Moon has Set</source>
        <translation>Mond verborgen</translation>
    </message>
    <message>
        <source> Length of day, Sunrise to Sunset </source>
        <translation> Tageslänge, Sonnenaufgang bis Sonnenuntergang </translation>
    </message>
    <message>
        <source>Months Between</source>
        <translation>Monate von</translation>
    </message>
    <message>
        <source>(1 - 12)</source>
        <translation>(1 – 12)</translation>
    </message>
    <message>
        <source>Major1 Between</source>
        <translation>Haupt1 von</translation>
    </message>
    <message>
        <source>Days of Week</source>
        <translation>Wochentage</translation>
    </message>
    <message>
        <source>(1-7, 1=Sun..7=Sat)</source>
        <translation>(1-7, 1=So..7=Sa)</translation>
    </message>
    <message>
        <source>Moon Age</source>
        <translation>Mondalter</translation>
    </message>
    <message>
        <source>(1-29)</source>
        <translation>(1–29)</translation>
    </message>
    <message>
        <source>Illumination Percent Between</source>
        <translation>Beleuchtung in Prozent von</translation>
    </message>
    <message>
        <source>(Moon illumination 1-100)</source>
        <translation>(Mondbeleuchtung 1-100)</translation>
    </message>
    <message>
        <source>Daylight Hours &gt;</source>
        <translation>Tageslichtstunden &gt;</translation>
    </message>
    <message>
        <source>(Greater than 1-14)</source>
        <translation>(Größer als 1-14)</translation>
    </message>
    <message>
        <source>Best Fishing Days</source>
        <translation>Beste Angeltage</translation>
    </message>
    <message>
        <source>Very Good Fishing Days</source>
        <translation>Sehr gute Angeltage</translation>
    </message>
    <message>
        <source>Either Major Between</source>
        <translation>Eine Hauptzeit von</translation>
    </message>
    <message>
        <source>Total Taken &gt;=</source>
        <translation>Fänge gesamt &gt;=</translation>
    </message>
    <message>
        <source>(Greater than or equal to)</source>
        <translation>(Größer oder gleich)</translation>
    </message>
    <message>
        <source>Moon Waxing</source>
        <translation>Zunehmender Mond</translation>
    </message>
    <message>
        <source>Moon Waning</source>
        <translation>Abnehmender Mond</translation>
    </message>
    <message>
        <source>Moon At Perigee</source>
        <translation>Mond in Erdnähe</translation>
    </message>
    <message>
        <source>All Rated Days</source>
        <translation>Alle bewerteten Tage</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Major1</source>
        <translation>Haupt1</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Rated Fishing Days</source>
        <translation>Bewertete Angeltage</translation>
    </message>
    <message>
        <source>Total Taken</source>
        <translation>Fänge gesamt</translation>
    </message>
    <message>
        <source>Sorted by Date</source>
        <translation>Nach Datum sortiert</translation>
    </message>
    <message>
        <source>Sorted by Major1</source>
        <translation>Nach Haupt1 sortiert</translation>
    </message>
    <message>
        <source>Sorted by Day of Week</source>
        <translation>Nach Wochentag sortiert</translation>
    </message>
    <message>
        <source>Sorted by Fish Rating</source>
        <translation>Nach Fischbewertung sortiert</translation>
    </message>
    <message>
        <source>Sorted by Total Taken</source>
        <translation>Nach Fängen gesamt sortiert</translation>
    </message>
    <message>
        <source>Apogee Days</source>
        <translation>Tage in Erdferne</translation>
    </message>
    <message>
        <source>Perigee Days</source>
        <translation>Tage in Erdnähe</translation>
    </message>
    <message>
        <source>Day before/after and Perigee</source>
        <translation>Tag davor/danach und Erdnähe</translation>
    </message>
    <message>
        <source>Weekends (Friday and Saturday)</source>
        <translation>Wochenenden (Freitag und Samstag)</translation>
    </message>
    <message>
        <source>Weekends(Saturday and Sunday)</source>
        <translation>Wochenenden (Samstag und Sonntag)</translation>
    </message>
    <message>
        <source>Weekends(Friday - Sunday)</source>
        <translation>Wochenenden (Freitag bis Sonntag)</translation>
    </message>
    <message>
        <source>Week Days</source>
        <translation>Werktage</translation>
    </message>
    <message>
        <source>Sundays</source>
        <translation>Sonntage</translation>
    </message>
    <message>
        <source>Mondays</source>
        <translation>Montage</translation>
    </message>
    <message>
        <source>Tuesdays</source>
        <translation>Dienstage</translation>
    </message>
    <message>
        <source>Wednesdays</source>
        <translation>Mittwoche</translation>
    </message>
    <message>
        <source>Thursdays</source>
        <translation>Donnerstage</translation>
    </message>
    <message>
        <source>Fridays</source>
        <translation>Freitage</translation>
    </message>
    <message>
        <source>Saturdays</source>
        <translation>Samstage</translation>
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
