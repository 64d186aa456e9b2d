<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CatchEditor</name>
    <message>
        <source>New Catch</source>
        <translation>Neuer Fang</translation>
    </message>
    <message>
        <source>Catch</source>
        <translation>Fang</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp *.gif *.webp);;All files (*)</source>
        <translation>Bilder (*.jpg *.jpeg *.png *.bmp *.gif *.webp);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Released</source>
        <translation>&amp;Zurückgesetzt</translation>
    </message>
    <message>
        <source>Casting</source>
        <translation>Werfen</translation>
    </message>
    <message>
        <source>Trolling</source>
        <translation>Schleppangeln</translation>
    </message>
    <message>
        <source>Fly fishing</source>
        <translation>Fliegenfischen</translation>
    </message>
    <message>
        <source>Jigging</source>
        <translation>Jiggen</translation>
    </message>
    <message>
        <source>Still fishing</source>
        <translation>Ansitzangeln</translation>
    </message>
    <message>
        <source>Ice fishing</source>
        <translation>Eisangeln</translation>
    </message>
    <message>
        <source>Spinning</source>
        <translation>Spinnfischen</translation>
    </message>
    <message>
        <source>north +</source>
        <translation>Nord +</translation>
    </message>
    <message>
        <source>east +</source>
        <translation>Ost +</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Windstill</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Mäßig</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>Sturm</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Teils bewölkt</translation>
    </message>
    <message>
        <source>Overcast</source>
        <translation>Bedeckt</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Regen</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Nebel</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>&amp;Time:</source>
        <translation>&amp;Uhrzeit:</translation>
    </message>
    <message>
        <source>&amp;Species:</source>
        <translation>&amp;Fischart:</translation>
    </message>
    <message>
        <source>C&amp;ount:</source>
        <translation>&amp;Anzahl:</translation>
    </message>
    <message>
        <source>&amp;Length:</source>
        <translation>&amp;Länge:</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>&amp;Gewicht:</translation>
    </message>
    <message>
        <source>&amp;Bait or lure:</source>
        <translation>&amp;Köder:</translation>
    </message>
    <message>
        <source>&amp;Method:</source>
        <translation>&amp;Methode:</translation>
    </message>
    <message>
        <source>S&amp;pot:</source>
        <translation>&amp;Stelle:</translation>
    </message>
    <message>
        <source>L&amp;atitude:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Lo&amp;ngitude:</source>
        <translation>L&amp;änge:</translation>
    </message>
    <message>
        <source>Wat&amp;er:</source>
        <translation>&amp;Wasser:</translation>
    </message>
    <message>
        <source>A&amp;ir:</source>
        <translation>Lu&amp;ft:</translation>
    </message>
    <message>
        <source>Win&amp;d:</source>
        <translation>Win&amp;d:</translation>
    </message>
    <message>
        <source>Sk&amp;y:</source>
        <translation>&amp;Himmel:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>&amp;Notiz:</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Double-click a photo to see it at full size</source>
        <translation>Doppelklick zeigt das Foto in voller Größe</translation>
    </message>
    <message>
        <source>&amp;Add Photos...</source>
        <translation>Fotos &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Remo&amp;ve Photo</source>
        <translation>Foto &amp;entfernen</translation>
    </message>
    <message>
        <source>%1 is not a time of day</source>
        <translation>%1 ist keine Uhrzeit</translation>
    </message>
    <message>
        <source>%1 is not a latitude from %2 to %3</source>
        <translation>%1 ist keine Breite von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 is not a longitude from %2 to %3</source>
        <translation>%1 ist keine Länge von %2 bis %3</translation>
    </message>
    <message>
        <source>Save changes to this catch?</source>
        <translation>Änderungen an diesem Fang speichern?</translation>
    </message>
</context>
<context>
    <name>CatchList</name>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Species</source>
        <translation>Fischart</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Length (%1)</source>
        <translation>Länge (%1)</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Gewicht (%1)</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Entnommen</translation>
    </message>
    <message>
        <source>Bait or lure</source>
        <translation>Köder</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Add &amp;Catch...</source>
        <translation>&amp;Fang hinzufügen...</translation>
    </message>
    <message>
        <source>Edit Catc&amp;h...</source>
        <translation>Fang &amp;bearbeiten...</translation>
    </message>
    <message>
        <source>Remove Catch</source>
        <translation>Fang entfernen</translation>
    </message>
    <message>
        <source>The day&apos;s catches could not be read: %1</source>
        <translation>Die Fänge des Tages ließen sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Zurückgesetzt</translation>
    </message>
    <message>
        <source>The photo %1 is not a picture.</source>
        <translation>Das Foto %1 ist kein Bild.</translation>
    </message>
    <message>
        <source>this catch</source>
        <translation>diesen Fang</translation>
    </message>
    <message>
        <source>Remove %1 from the log?</source>
        <translation>%1 aus dem Fangbuch entfernen?</translation>
    </message>
    <message>
        <source>The catch could not be removed: %1</source>
        <translation>Der Fang ließ sich nicht entfernen: %1</translation>
    </message>
</context>
<context>
    <name>CatchPages</name>
    <message>
        <source>Major period</source>
        <translation>Hauptbeißzeit</translation>
    </message>
    <message>
        <source>Minor period</source>
        <translation>Nebenbeißzeit</translation>
    </message>
    <message>
        <source>Other times</source>
        <translation>Übrige Zeiten</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>Ohne Uhrzeit</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Entnommen</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Zurückgesetzt</translation>
    </message>
    <message>
        <source>The number over each bar: fish taken</source>
        <translation>Die Zahl über jedem Balken: gefangene Fische</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Fische</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message>
        <source>By species</source>
        <translation>Nach Fischart</translation>
    </message>
    <message>
        <source>By time of day</source>
        <translation>Nach Tageszeit</translation>
    </message>
    <message>
        <source>By spot</source>
        <translation>Nach Angelstelle</translation>
    </message>
    <message>
        <source>By water temperature</source>
        <translation>Nach Wassertemperatur</translation>
    </message>
    <message>
        <source>Catches</source>
        <translation>Fänge</translation>
    </message>
    <message>
        <source>Fish by species</source>
        <translation>Fische nach Fischart</translation>
    </message>
    <message>
        <source>Fish by the day&apos;s periods and the sun</source>
        <translation>Fische nach Beißzeiten und Sonnenstand</translation>
    </message>
    <message>
        <source>Fish by clock hour</source>
        <translation>Fische nach Uhrzeit</translation>
    </message>
    <message>
        <source>Fish by spot</source>
        <translation>Fische nach Angelstelle</translation>
    </message>
    <message>
        <source>Fish by water temperature</source>
        <translation>Fische nach Wassertemperatur</translation>
    </message>
    <message>
        <source>Sunrise/set ±1 h</source>
        <translation>Sonnenauf-/-untergang ±1 h</translation>
    </message>
</context>
<context>
    <name>DataBar</name>
    <message>
        <source>First record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>Previous record</source>
        <translation>Voriger Datensatz</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Letzter Datensatz</translation>
    </message>
</context>
<context>
    <name>DayGraph</name>
    <message>
        <source>Daily Conditions</source>
        <translation>Tagesverlauf</translation>
    </message>
    <message>
        <source>Moon&apos;s Age:</source>
        <translation>Mondalter:</translation>
    </message>
    <message>
        <source>29 Days</source>
        <translation>29 Tage</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source> Return to Calendar </source>
        <translation> Zurück zum Kalender </translation>
    </message>
    <message>
        <source> Azimuth of Sun and Moon </source>
        <translation> Azimut von Sonne und Mond </translation>
    </message>
    <message>
        <source> Each Tick is 10 Degrees of Elevation </source>
        <translation> Jeder Strich sind 10 Grad Höhe </translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Mond</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source> Click To Close </source>
        <translation> Klicken zum Schließen </translation>
    </message>
</context>
<context>
    <name>EditDB</name>
    <message>
        <source>Edit Database</source>
        <translation>Datenbank bearbeiten</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>a whole number of hours from %1 to %2</source>
        <translation>eine ganze Stundenzahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a number of degrees from %1 to %2</source>
        <translation>eine Gradzahl von %1 bis %2</translation>
    </message>
    <message>
        <source> Show the cities of one state, or ALL </source>
        <translation> Die Städte eines Bundesstaats zeigen, oder ALLE </translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <source>Record: %1 of %2 Record(s)</source>
        <translation>Datensatz: %1 von %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not %3.</source>
        <translation>%1: „%2“ ist nicht %3.</translation>
    </message>
    <message>
        <source>Missing Data!</source>
        <translation>Angaben fehlen!</translation>
    </message>
    <message>
        <source>Delete Current Record?</source>
        <translation>Aktuellen Datensatz löschen?</translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message>
        <source>Save changes to this city?</source>
        <translation>Änderungen an dieser Stadt speichern?</translation>
    </message>
    <message>
        <source>Input CityName</source>
        <translation>Stadtname eingeben</translation>
    </message>
    <message>
        <source>City Name?</source>
        <translation>Name der Stadt?</translation>
    </message>
    <message>
        <source>City NOT Found!</source>
        <translation>Stadt NICHT gefunden!</translation>
    </message>
    <message>
        <source>City Search</source>
        <translation>Stadtsuche</translation>
    </message>
    <message>
        <source>Input City</source>
        <translation>Stadt eingeben</translation>
    </message>
    <message>
        <source>City?</source>
        <translation>Stadt?</translation>
    </message>
</context>
<context>
    <name>ExportCatches</name>
    <message>
        <source>Export Catches</source>
        <translation>Fänge exportieren</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>Nichts wurde exportiert: %1</translation>
    </message>
    <message>
        <source>%1 day(s) and %2 catch(es) of %3 were written to %4.</source>
        <translation>%1 Tag(e) und %2 Fang/Fänge aus %3 wurden nach %4 geschrieben.</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quillmere</source>
        <translation>Über Quillmere</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;font-size:16pt&quot;&gt;Quillmere&lt;/b&gt;&lt;br&gt;The fishing calendar</source>
        <translation>&lt;b style=&quot;font-size:16pt&quot;&gt;Quillmere&lt;/b&gt;&lt;br&gt;Der Angelkalender</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>City list: GeoNames (geonames.org), licensed under CC BY 4.0</source>
        <translation>Städteliste: GeoNames (geonames.org), lizenziert unter CC BY 4.0</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>FrmBackups</name>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source> Put the selected copy in the place of the file </source>
        <translation> Die gewählte Kopie an die Stelle der Datei setzen </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Copies of %1, newest first:</source>
        <translation>Kopien von %1, neueste zuerst:</translation>
    </message>
    <message>
        <source>No Backup Selected! </source>
        <translation>Keine Sicherung gewählt! </translation>
    </message>
    <message>
        <source>Restore %1 as it was on %2? The file as it is now is kept as a backup.</source>
        <translation>%1 auf den Stand vom %2 zurücksetzen? Die Datei, wie sie jetzt ist, bleibt als Sicherung erhalten.</translation>
    </message>
    <message>
        <source>%1 now holds the copy of %2.</source>
        <translation>%1 enthält jetzt die Kopie vom %2.</translation>
    </message>
    <message>
        <source>%1 could not be restored: %2</source>
        <translation>%1 ließ sich nicht wiederherstellen: %2</translation>
    </message>
</context>
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
    <name>FrmDetail</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Click to Halt Timer</source>
        <translation>Klicken hält die Uhr an</translation>
    </message>
</context>
<context>
    <name>FrmGlance</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>FrmList</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source> Close List Screen </source>
        <translation> Liste schließen </translation>
    </message>
    <message>
        <source>Clip&amp;Board</source>
        <translation>&amp;Zwischenablage</translation>
    </message>
    <message>
        <source> Copy text to clipboard </source>
        <translation> Text in die Zwischenablage kopieren </translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source> Print a Calendar </source>
        <translation> Einen Kalender drucken </translation>
    </message>
</context>
<context>
    <name>FrmLocation</name>
    <message>
        <source>User Location</source>
        <translation>Eigener Ort</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source> Click on Desired Time Zone </source>
        <translation> Gewünschte Zeitzone anklicken </translation>
    </message>
    <message>
        <source> Type part of a zone (Kolkata, Oslo) or pick one; empty for the whole-hour zone only </source>
        <translation> Teil einer Zone tippen (Kolkata, Oslo) oder eine wählen; leer nur für die ganzstündige Zone </translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Als Standard</translation>
    </message>
    <message>
        <source> Make Displayed Data the Default </source>
        <translation> Die angezeigten Angaben zum Standard machen </translation>
    </message>
    <message>
        <source>Edit DB</source>
        <translation>DB bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source> Click When Finished </source>
        <translation> Klicken, wenn fertig </translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Time Zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesstaat</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Local Clock zone</source>
        <translation>Zone der Ortszeit</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number from %3 to %4.</source>
        <translation>%1: „%2“ ist keine ganze Zahl von %3 bis %4.</translation>
    </message>
    <message>
        <source>The location needs a name: type one, or pick a state and a city.</source>
        <translation>Der Ort braucht einen Namen: Geben Sie einen ein oder wählen Sie Bundesstaat und Stadt.</translation>
    </message>
    <message>
        <source>A location&apos;s name holds at most %1 characters; this one has %2.</source>
        <translation>Der Name eines Ortes hat höchstens %1 Zeichen; dieser hat %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time zone this computer knows: pick one from the list (Asia/Kolkata, Europe/Oslo) or leave the box empty for the whole-hour zone only.</source>
        <translation>„%1“ ist keine Zeitzone, die dieser Rechner kennt: Wählen Sie eine aus der Liste (Asia/Kolkata, Europe/Oslo) oder lassen Sie das Feld leer für die ganzstündige Zone.</translation>
    </message>
    <message>
        <source>A longitude runs to %1 degrees and a latitude to %2; %3.%4 is beyond.</source>
        <translation>Eine Länge reicht bis %1 Grad, eine Breite bis %2; %3.%4 liegt darüber.</translation>
    </message>
    <message>
        <source>The city list holds no cities; type the place by hand.</source>
        <translation>Die Städteliste enthält keine Städte; geben Sie den Ort von Hand ein.</translation>
    </message>
    <message>
        <source> is no longer in the city list.</source>
        <translation> ist nicht mehr in der Städteliste.</translation>
    </message>
    <message>
        <source>The city list&apos;s record of %1 lacks a usable longitude, latitude or whole-hour time zone (-12 to 12).</source>
        <translation>Der Eintrag von %1 in der Städteliste hat keine brauchbare Länge, Breite oder ganzstündige Zeitzone (-12 bis 12).</translation>
    </message>
</context>
<context>
    <name>FrmPrint</name>
    <message>
        <source>Print Calendar</source>
        <translation>Kalender drucken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
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
    <name>FrmSelectDB</name>
    <message>
        <source>Database Functions</source>
        <translation>Datenbankfunktionen</translation>
    </message>
    <message>
        <source>Import Catches</source>
        <translation>Fänge importieren</translation>
    </message>
    <message>
        <source>Log exports (*.csv *.json);;All files (*)</source>
        <translation>Fangbuch-Exporte (*.csv *.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export Catches</source>
        <translation>Fänge exportieren</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;JSON files (*.json)</source>
        <translation>CSV-Dateien (*.csv);;JSON-Dateien (*.json)</translation>
    </message>
    <message>
        <source> DoubleClick on Year of Interest </source>
        <translation> Doppelklick auf das gewünschte Jahr </translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source> Open Selected File </source>
        <translation> Gewählte Datei öffnen </translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source> Delete Selected File </source>
        <translation> Gewählte Datei löschen </translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Verdichten</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source> Import Catches from a CSV or JSON File into the Selected Year </source>
        <translation> Fänge aus einer CSV- oder JSON-Datei in das gewählte Jahr importieren </translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source> Export the Selected Year with its Catches as CSV or JSON </source>
        <translation> Das gewählte Jahr mit seinen Fängen als CSV oder JSON exportieren </translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source> Restore an Earlier Copy of the Selected File </source>
        <translation> Eine frühere Kopie der gewählten Datei wiederherstellen </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source> Close and Exit </source>
        <translation> Schließen und beenden </translation>
    </message>
    <message>
        <source>No File Selected! </source>
        <translation>Keine Datei gewählt! </translation>
    </message>
    <message>
        <source>No backup of %1 could be made: %2
The file opens as it is.</source>
        <translation>Von %1 ließ sich keine Sicherung anlegen: %2
Die Datei wird so geöffnet, wie sie ist.</translation>
    </message>
    <message>
        <source>Create DataBase for </source>
        <translation>Datenbank anlegen für </translation>
    </message>
    <message>
        <source>DataBase already exists for </source>
        <translation>Datenbank gibt es schon für </translation>
    </message>
    <message>
        <source>The DataBase for %1 could not be created: %2
No file was kept; use Create to try again.</source>
        <translation>Die Datenbank für %1 ließ sich nicht anlegen: %2
Es wurde keine Datei behalten; versuchen Sie es mit Anlegen erneut.</translation>
    </message>
    <message>
        <source>Create DataBase</source>
        <translation>Datenbank anlegen</translation>
    </message>
    <message>
        <source>%1 is missing, but a copy of it is kept as %2.
Restore %1 from that copy?</source>
        <translation>%1 fehlt, aber eine Kopie liegt als %2 vor.
%1 aus dieser Kopie wiederherstellen?</translation>
    </message>
    <message>
        <source>Restore DataBase</source>
        <translation>Datenbank wiederherstellen</translation>
    </message>
    <message>
        <source>%1 could not be restored: %2
The copy is kept as it was.</source>
        <translation>%1 ließ sich nicht wiederherstellen: %2
Die Kopie bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>Confirm to Delete Selected File </source>
        <translation>Löschen der gewählten Datei bestätigen </translation>
    </message>
    <message>
        <source> The file is not deleted.</source>
        <translation> Die Datei wird nicht gelöscht.</translation>
    </message>
    <message>
        <source>Compact DataBases</source>
        <translation>Datenbanken verdichten</translation>
    </message>
    <message>
        <source>Compacting Completed!</source>
        <translation>Verdichten abgeschlossen!</translation>
    </message>
    <message>
        <source>Error Compacting Database!</source>
        <translation>Fehler beim Verdichten der Datenbank!</translation>
    </message>
    <message>
        <source>Repair Completed!
</source>
        <translation>Reparatur abgeschlossen!
</translation>
    </message>
    <message>
        <source>Error Repairing Database!
%1
The file is kept as it was.</source>
        <translation>Fehler beim Reparieren der Datenbank!
%1
Die Datei bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>Repair DataBases</source>
        <translation>Datenbanken reparieren</translation>
    </message>
</context>
<context>
    <name>FrmStatistics</name>
    <message>
        <source>Fish per day fished</source>
        <translation>Fische je Angeltag</translation>
    </message>
    <message>
        <source>The number over each bar: days fished</source>
        <translation>Die Zahl über jedem Balken: Angeltage</translation>
    </message>
    <message>
        <source>Catch Statistics</source>
        <translation>Fangstatistik</translation>
    </message>
    <message>
        <source>This year&apos;s file (%1)</source>
        <translation>Die Datei dieses Jahres (%1)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source> Copy the figures for a spreadsheet </source>
        <translation> Die Zahlen für eine Tabellenkalkulation kopieren </translation>
    </message>
    <message>
        <source>Records:</source>
        <translation>Datensätze:</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Every year file in the folder (%1)</source>
        <translation>Alle Jahresdateien im Ordner (%1)</translation>
    </message>
    <message>
        <source>The log could not be read: %1</source>
        <translation>Das Fangbuch ließ sich nicht lesen: %1</translation>
    </message>
</context>
<context>
    <name>FrmYearCal</name>
    <message>
        <source>Yearly Calendar</source>
        <translation>Jahreskalender</translation>
    </message>
    <message>
        <source> DoubleClick to Select and Exit </source>
        <translation> Doppelklick wählt und schließt </translation>
    </message>
    <message>
        <source>Done-Exit</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Quillmere Help</source>
        <translation>Quillmere-Hilfe</translation>
    </message>
    <message>
        <source>The help file %1 is missing. Reinstall Quillmere, or delete the program folder&apos;s copy so that it is put back at the next start.</source>
        <translation>Die Hilfedatei %1 fehlt. Installieren Sie Quillmere neu oder löschen Sie die Kopie im Programmordner, damit sie beim nächsten Start zurückgelegt wird.</translation>
    </message>
</context>
<context>
    <name>ImportCatches</name>
    <message>
        <source>Import Catches</source>
        <translation>Fänge importieren</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>%1 day(s) can be imported into %2.%3

</source>
        <translation>%1 Tag(e) lassen sich in %2 importieren.%3

</translation>
    </message>
    <message>
        <source>OK imports them; lines with problems are left out.</source>
        <translation>OK importiert sie; fehlerhafte Zeilen bleiben außen vor.</translation>
    </message>
    <message>
        <source>%1 of these days already hold an entry. Yes overwrites those entries, No keeps them and imports the rest, Cancel imports nothing.</source>
        <translation>%1 dieser Tage haben schon einen Eintrag. Ja überschreibt diese Einträge, Nein behält sie und importiert den Rest, Abbrechen importiert nichts.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1.</source>
        <translation>Nichts wurde importiert: %1.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>Nichts wurde importiert: %1</translation>
    </message>
    <message>
        <source>The file holds no catch entry to import into %1.%2</source>
        <translation>Die Datei enthält keinen Fangeintrag zum Import in %1.%2</translation>
    </message>
    <message>
        <source>%1 day(s) of %2 now hold the imported entries%3.</source>
        <translation>%1 Tag(e) von %2 enthalten jetzt die importierten Einträge%3.</translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>the file is missing</source>
        <translation>die Datei fehlt</translation>
    </message>
    <message>
        <source>The photo %1 cannot be shown: %2.</source>
        <translation>Das Foto %1 lässt sich nicht zeigen: %2.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
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
<context>
    <name>UnitsMenu</name>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Einheiten</translation>
    </message>
    <message>
        <source>&amp;Metric (cm, kg, °C)</source>
        <translation>&amp;Metrisch (cm, kg, °C)</translation>
    </message>
    <message>
        <source>&amp;Imperial (in, lb, °F)</source>
        <translation>&amp;Angloamerikanisch (in, lb, °F)</translation>
    </message>
</context>
<context>
    <name>frmReport</name>
    <message>
        <source>Quillmere DataBase Report</source>
        <translation>Quillmere-Datenbankbericht</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Datenfehler:</translation>
    </message>
</context>
<context>
    <name>frmTable1</name>
    <message>
        <source>Taken With holds at most 255 characters.</source>
        <translation>Gefangen mit fasst höchstens 255 Zeichen.</translation>
    </message>
    <message>
        <source>Quillmere DataBase</source>
        <translation>Quillmere-Datenbank</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>S&amp;tatistik</translation>
    </message>
    <message>
        <source>DBID:</source>
        <translation>DB-Nr.:</translation>
    </message>
    <message>
        <source>JulianDate:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>SunRise:</source>
        <translation>Sonnenaufgang:</translation>
    </message>
    <message>
        <source>SunSet:</source>
        <translation>Sonnenuntergang:</translation>
    </message>
    <message>
        <source>MoonRise:</source>
        <translation>Mondaufgang:</translation>
    </message>
    <message>
        <source>MoonSet:</source>
        <translation>Monduntergang:</translation>
    </message>
    <message>
        <source>Major1:</source>
        <translation>Haupt1:</translation>
    </message>
    <message>
        <source>Major2:</source>
        <translation>Haupt2:</translation>
    </message>
    <message>
        <source>Minor1:</source>
        <translation>Neben1:</translation>
    </message>
    <message>
        <source>Minor2:</source>
        <translation>Neben2:</translation>
    </message>
    <message>
        <source>CivilTwilight:</source>
        <translation>Bürgerl. Dämmerung:</translation>
    </message>
    <message>
        <source>NauticalTwilight:</source>
        <translation>Naut. Dämmerung:</translation>
    </message>
    <message>
        <source>AstronomicalTwilight:</source>
        <translation>Astron. Dämmerung:</translation>
    </message>
    <message>
        <source>IllumPercent:</source>
        <translation>Beleuchtung %:</translation>
    </message>
    <message>
        <source>MoonAge:</source>
        <translation>Mondalter:</translation>
    </message>
    <message>
        <source>GraphicType:</source>
        <translation>Bewertung:</translation>
    </message>
    <message>
        <source>Waxing:</source>
        <translation>Zunehmend:</translation>
    </message>
    <message>
        <source>Day of Year</source>
        <translation>Tag im Jahr</translation>
    </message>
    <message>
        <source>Day Light Hrs:</source>
        <translation>Tageslicht Std.:</translation>
    </message>
    <message>
        <source>DaylightHours:</source>
        <translation>Tageslichtstunden:</translation>
    </message>
    <message>
        <source>Total Taken:</source>
        <translation>Fänge gesamt:</translation>
    </message>
    <message>
        <source>Taken With:</source>
        <translation>Gefangen mit:</translation>
    </message>
    <message>
        <source>Peak Time:</source>
        <translation>Beste Zeit:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source> Click To Edit Record </source>
        <translation> Klicken, um den Datensatz zu bearbeiten </translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source> Click To Update Record </source>
        <translation> Klicken, um den Datensatz zu speichern </translation>
    </message>
    <message>
        <source>Quillmere DataBase - %1</source>
        <translation>Quillmere-Datenbank - %1</translation>
    </message>
    <message>
        <source>Sorted by Date</source>
        <translation>Nach Datum sortiert</translation>
    </message>
    <message>
        <source>Sat-Sun</source>
        <translation>Sa-So</translation>
    </message>
    <message>
        <source>Fri-Sun</source>
        <translation>Fr-So</translation>
    </message>
    <message>
        <source>Record: %1 of %2 Record(s)</source>
        <translation>Datensatz: %1 von %2</translation>
    </message>
    <message>
        <source>Day before/after perigee</source>
        <translation>Tag vor/nach der Erdnähe</translation>
    </message>
    <message>
        <source>Perigee</source>
        <translation>Erdnähe</translation>
    </message>
    <message>
        <source>Apogee</source>
        <translation>Erdferne</translation>
    </message>
    <message>
        <source>Moon is Waxing</source>
        <translation>Mond nimmt zu</translation>
    </message>
    <message>
        <source>Moon is Waning</source>
        <translation>Mond nimmt ab</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Datenfehler:</translation>
    </message>
    <message>
        <source>Total Taken</source>
        <translation>Fänge gesamt</translation>
    </message>
    <message>
        <source>Peak Time</source>
        <translation>Beste Zeit</translation>
    </message>
    <message>
        <source>Save changes to this day?</source>
        <translation>Änderungen an diesem Tag speichern?</translation>
    </message>
    <message>
        <source>Select Data Where</source>
        <translation>Daten auswählen, wo</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source> Select Data From Conditions of CheckBoxes </source>
        <translation> Daten nach den angekreuzten Bedingungen auswählen </translation>
    </message>
    <message>
        <source>All Records</source>
        <translation>Alle Datensätze</translation>
    </message>
    <message>
        <source> Display ALL Records in Database </source>
        <translation> ALLE Datensätze der Datenbank zeigen </translation>
    </message>
    <message>
        <source>Clear Text</source>
        <translation>Text leeren</translation>
    </message>
    <message>
        <source> Clear TextBoxes </source>
        <translation> Textfelder leeren </translation>
    </message>
    <message>
        <source>Clear Checks</source>
        <translation>Häkchen entfernen</translation>
    </message>
    <message>
        <source> UnCheck ALL CheckBoxes </source>
        <translation> ALLE Häkchen entfernen </translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source> Display Report for Current Records </source>
        <translation> Bericht über die aktuellen Datensätze zeigen </translation>
    </message>
    <message>
        <source>&amp;Table View</source>
        <translation>&amp;Tabellenansicht</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Monate</translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation>Ta&amp;ge</translation>
    </message>
    <message>
        <source>These steps of the selection could not run and were passed over:
</source>
        <translation>Diese Schritte der Auswahl ließen sich nicht ausführen und wurden übersprungen:
</translation>
    </message>
    <message>
        <source>ddd, MMMM,dd,yyyy</source>
        <extracomment>The record&apos;s date above its fields, a QLocale date format.</extracomment>
        <translation>dddd, d. MMMM yyyy</translation>
    </message>
</context>
<context>
    <name>frmTable2</name>
    <message>
        <source>Species</source>
        <translation>Fischart</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Fische</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Zurückgesetzt</translation>
    </message>
    <message>
        <source>Longest (%1)</source>
        <translation>Längster (%1)</translation>
    </message>
    <message>
        <source>Heaviest (%1)</source>
        <translation>Schwerster (%1)</translation>
    </message>
    <message>
        <source>Quillmere DataBase</source>
        <translation>Quillmere-Datenbank</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Record: %1</source>
        <translation>Datensatz: %1</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Datenfehler:</translation>
    </message>
</context>
</TS>
