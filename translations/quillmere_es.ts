<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>CatchEditor</name>
    <message>
        <source>New Catch</source>
        <translation>Nueva captura</translation>
    </message>
    <message>
        <source>Catch</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp *.gif *.webp);;All files (*)</source>
        <translation>Imágenes (*.jpg *.jpeg *.png *.bmp *.gif *.webp);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Released</source>
        <translation>&amp;Devuelto al agua</translation>
    </message>
    <message>
        <source>Casting</source>
        <translation>Lanzado</translation>
    </message>
    <message>
        <source>Trolling</source>
        <translation>Curricán</translation>
    </message>
    <message>
        <source>Fly fishing</source>
        <translation>Pesca con mosca</translation>
    </message>
    <message>
        <source>Jigging</source>
        <translation>Jigging vertical</translation>
    </message>
    <message>
        <source>Still fishing</source>
        <translation>Pesca al coup</translation>
    </message>
    <message>
        <source>Ice fishing</source>
        <translation>Pesca en hielo</translation>
    </message>
    <message>
        <source>Spinning</source>
        <translation>Spinning con cucharilla</translation>
    </message>
    <message>
        <source>north +</source>
        <translation>norte +</translation>
    </message>
    <message>
        <source>east +</source>
        <translation>este +</translation>
    </message>
    <message>
        <source>Calm</source>
        <translation>Calma</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Flojo</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Moderado</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>Gale</source>
        <translation>Temporal</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Despejado</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <translation>Parcialmente nublado</translation>
    </message>
    <message>
        <source>Overcast</source>
        <translation>Cubierto</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Lluvia</translation>
    </message>
    <message>
        <source>Fog</source>
        <translation>Niebla</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Nieve</translation>
    </message>
    <message>
        <source>&amp;Time:</source>
        <translation>&amp;Hora:</translation>
    </message>
    <message>
        <source>&amp;Species:</source>
        <translation>&amp;Especie:</translation>
    </message>
    <message>
        <source>C&amp;ount:</source>
        <translation>&amp;Cantidad:</translation>
    </message>
    <message>
        <source>&amp;Length:</source>
        <translation>&amp;Longitud:</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>&amp;Peso:</translation>
    </message>
    <message>
        <source>&amp;Bait or lure:</source>
        <translation>Ce&amp;bo o señuelo:</translation>
    </message>
    <message>
        <source>&amp;Method:</source>
        <translation>&amp;Técnica:</translation>
    </message>
    <message>
        <source>S&amp;pot:</source>
        <translation>Pues&amp;to:</translation>
    </message>
    <message>
        <source>L&amp;atitude:</source>
        <translation>L&amp;atitud:</translation>
    </message>
    <message>
        <source>Lo&amp;ngitude:</source>
        <translation>Lo&amp;ngitud:</translation>
    </message>
    <message>
        <source>Wat&amp;er:</source>
        <translation>A&amp;gua:</translation>
    </message>
    <message>
        <source>A&amp;ir:</source>
        <translation>A&amp;ire:</translation>
    </message>
    <message>
        <source>Win&amp;d:</source>
        <translation>V&amp;iento:</translation>
    </message>
    <message>
        <source>Sk&amp;y:</source>
        <translation>Ci&amp;elo:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>&amp;Nota:</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Double-click a photo to see it at full size</source>
        <translation>Doble clic para ver la foto a tamaño completo</translation>
    </message>
    <message>
        <source>&amp;Add Photos...</source>
        <translation>Añadir &amp;fotos...</translation>
    </message>
    <message>
        <source>Remo&amp;ve Photo</source>
        <translation>&amp;Quitar foto</translation>
    </message>
    <message>
        <source>%1 is not a time of day</source>
        <translation>%1 no es una hora del día</translation>
    </message>
    <message>
        <source>%1 is not a latitude from %2 to %3</source>
        <translation>%1 no es una latitud de %2 a %3</translation>
    </message>
    <message>
        <source>%1 is not a longitude from %2 to %3</source>
        <translation>%1 no es una longitud de %2 a %3</translation>
    </message>
    <message>
        <source>Save changes to this catch?</source>
        <translation>¿Guardar los cambios de esta captura?</translation>
    </message>
</context>
<context>
    <name>CatchList</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Species</source>
        <translation>Especie</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Length (%1)</source>
        <translation>Longitud (%1)</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Peso (%1)</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Bait or lure</source>
        <translation>Cebo o señuelo</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Add &amp;Catch...</source>
        <translation>Añadir &amp;captura...</translation>
    </message>
    <message>
        <source>Edit Catc&amp;h...</source>
        <translation>&amp;Editar captura...</translation>
    </message>
    <message>
        <source>Remove Catch</source>
        <translation>Quitar captura</translation>
    </message>
    <message>
        <source>The day&apos;s catches could not be read: %1</source>
        <translation>No se pudieron leer las capturas del día: %1</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Devuelto</translation>
    </message>
    <message>
        <source>The photo %1 is not a picture.</source>
        <translation>La foto %1 no es una imagen.</translation>
    </message>
    <message>
        <source>this catch</source>
        <translation>esta captura</translation>
    </message>
    <message>
        <source>Remove %1 from the log?</source>
        <translation>¿Quitar %1 del diario de pesca?</translation>
    </message>
    <message>
        <source>The catch could not be removed: %1</source>
        <translation>No se pudo quitar la captura: %1</translation>
    </message>
</context>
<context>
    <name>CatchPages</name>
    <message>
        <source>Major period</source>
        <translation>Periodo mayor</translation>
    </message>
    <message>
        <source>Minor period</source>
        <translation>Periodo menor</translation>
    </message>
    <message>
        <source>Other times</source>
        <translation>Otras horas</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>Sin hora</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Guardados</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Devueltos</translation>
    </message>
    <message>
        <source>The number over each bar: fish taken</source>
        <translation>El número sobre cada barra: peces capturados</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Peces</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 a %2 %3</translation>
    </message>
    <message>
        <source>By species</source>
        <translation>Por especie</translation>
    </message>
    <message>
        <source>By time of day</source>
        <translation>Por hora del día</translation>
    </message>
    <message>
        <source>By spot</source>
        <translation>Por puesto</translation>
    </message>
    <message>
        <source>By water temperature</source>
        <translation>Por temperatura del agua</translation>
    </message>
    <message>
        <source>Catches</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <source>Fish by species</source>
        <translation>Peces por especie</translation>
    </message>
    <message>
        <source>Fish by the day&apos;s periods and the sun</source>
        <translation>Peces por periodos del día y el sol</translation>
    </message>
    <message>
        <source>Fish by clock hour</source>
        <translation>Peces por hora</translation>
    </message>
    <message>
        <source>Fish by spot</source>
        <translation>Peces por puesto</translation>
    </message>
    <message>
        <source>Fish by water temperature</source>
        <translation>Peces por temperatura del agua</translation>
    </message>
    <message>
        <source>Sunrise/set ±1 h</source>
        <translation>Salida/puesta del sol ±1 h</translation>
    </message>
</context>
<context>
    <name>DataBar</name>
    <message>
        <source>First record</source>
        <translation>Primer registro</translation>
    </message>
    <message>
        <source>Previous record</source>
        <translation>Registro anterior</translation>
    </message>
    <message>
        <source>Next record</source>
        <translation>Registro siguiente</translation>
    </message>
    <message>
        <source>Last record</source>
        <translation>Último registro</translation>
    </message>
</context>
<context>
    <name>DayGraph</name>
    <message>
        <source>Daily Conditions</source>
        <translation>Condiciones del día</translation>
    </message>
    <message>
        <source>Moon&apos;s Age:</source>
        <translation>Edad lunar:</translation>
    </message>
    <message>
        <source>29 Days</source>
        <translation>29 días</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source> Return to Calendar </source>
        <translation> Volver al calendario </translation>
    </message>
    <message>
        <source> Azimuth of Sun and Moon </source>
        <translation> Acimut del sol y la luna </translation>
    </message>
    <message>
        <source> Each Tick is 10 Degrees of Elevation </source>
        <translation> Cada marca son 10 grados de altura </translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Luna</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Acimut</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source> Click To Close </source>
        <translation> Clic para cerrar </translation>
    </message>
</context>
<context>
    <name>EditDB</name>
    <message>
        <source>Edit Database</source>
        <translation>Editar la base de datos</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>a whole number of hours from %1 to %2</source>
        <translation>un número entero de horas de %1 a %2</translation>
    </message>
    <message>
        <source>a number of degrees from %1 to %2</source>
        <translation>un número de grados de %1 a %2</translation>
    </message>
    <message>
        <source> Show the cities of one state, or ALL </source>
        <translation> Mostrar las ciudades de un estado, o TODAS </translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TODAS</translation>
    </message>
    <message>
        <source>Record: %1 of %2 Record(s)</source>
        <translation>Registro: %1 de %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not %3.</source>
        <translation>%1: «%2» no es %3.</translation>
    </message>
    <message>
        <source>Missing Data!</source>
        <translation>¡Faltan datos!</translation>
    </message>
    <message>
        <source>Delete Current Record?</source>
        <translation>¿Borrar el registro actual?</translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>Borrar registro</translation>
    </message>
    <message>
        <source>Save changes to this city?</source>
        <translation>¿Guardar los cambios de esta ciudad?</translation>
    </message>
    <message>
        <source>Input CityName</source>
        <translation>Escribir el nombre de la ciudad</translation>
    </message>
    <message>
        <source>City Name?</source>
        <translation>¿Nombre de la ciudad?</translation>
    </message>
    <message>
        <source>City NOT Found!</source>
        <translation>¡Ciudad NO encontrada!</translation>
    </message>
    <message>
        <source>City Search</source>
        <translation>Buscar ciudad</translation>
    </message>
    <message>
        <source>Input City</source>
        <translation>Escribir la ciudad</translation>
    </message>
    <message>
        <source>City?</source>
        <translation>¿Ciudad?</translation>
    </message>
</context>
<context>
    <name>ExportCatches</name>
    <message>
        <source>Export Catches</source>
        <translation>Exportar capturas</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>No se exportó nada: %1</translation>
    </message>
    <message>
        <source>%1 day(s) and %2 catch(es) of %3 were written to %4.</source>
        <translation>Se escribieron %1 día(s) y %2 captura(s) de %3 en %4.</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quillmere</source>
        <translation>Acerca de Quillmere</translation>
    </message>
    <message>
        <source>&lt;b style=&quot;font-size:16pt&quot;&gt;Quillmere&lt;/b&gt;&lt;br&gt;The fishing calendar</source>
        <translation>&lt;b style=&quot;font-size:16pt&quot;&gt;Quillmere&lt;/b&gt;&lt;br&gt;El calendario de pesca</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>City list: GeoNames (geonames.org), licensed under CC BY 4.0</source>
        <translation>Lista de ciudades: GeoNames (geonames.org), con licencia CC BY 4.0</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>FrmBackups</name>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source> Put the selected copy in the place of the file </source>
        <translation> Poner la copia elegida en lugar del archivo </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Copies of %1, newest first:</source>
        <translation>Copias de %1, la más reciente primero:</translation>
    </message>
    <message>
        <source>No Backup Selected! </source>
        <translation>¡No se eligió ninguna copia! </translation>
    </message>
    <message>
        <source>Restore %1 as it was on %2? The file as it is now is kept as a backup.</source>
        <translation>¿Restaurar %1 tal como estaba el %2? El archivo actual se guarda como copia de seguridad.</translation>
    </message>
    <message>
        <source>%1 now holds the copy of %2.</source>
        <translation>%1 contiene ahora la copia del %2.</translation>
    </message>
    <message>
        <source>%1 could not be restored: %2</source>
        <translation>No se pudo restaurar %1: %2</translation>
    </message>
</context>
<context>
    <name>FrmCalendar</name>
    <message>
        <source> Previous Month </source>
        <translation> Mes anterior </translation>
    </message>
    <message>
        <source> Next Month </source>
        <translation> Mes siguiente </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>    Sun            Mon           Tue            Wed          Thu             Fri             Sat</source>
        <translation>  Dom   Lun   Mar   Mié   Jue   Vie   Sáb</translation>
    </message>
    <message>
        <source> Change the Year </source>
        <translation> Cambiar el año </translation>
    </message>
    <message>
        <source>Daylight Hours</source>
        <translation>Horas de luz</translation>
    </message>
    <message>
        <source>Majors</source>
        <translation>Periodos mayores</translation>
    </message>
    <message>
        <source>Minors</source>
        <translation>Periodos menores</translation>
    </message>
    <message>
        <source> Moon is due South/North </source>
        <translation> La luna pasa por el sur/norte </translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Puesta</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Luna</translation>
    </message>
    <message>
        <source> Move the moment of the day </source>
        <translation> Mover la hora del día </translation>
    </message>
    <message>
        <source> Click to Reset Hour Bar </source>
        <translation> Clic para reiniciar la barra de horas </translation>
    </message>
    <message>
        <source>&amp;DataBase</source>
        <translation>&amp;Base de datos</translation>
    </message>
    <message>
        <source>&amp;Yearly</source>
        <translation>&amp;Anual</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>&amp;Funciones</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>@&amp;Glance</source>
        <translation>De un &amp;vistazo</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabla</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Time Formats</source>
        <translation>&amp;Formatos de hora</translation>
    </message>
    <message>
        <source>&amp;Daylight Savings</source>
        <translation>Horario de &amp;verano</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>Hora &amp;estándar</translation>
    </message>
    <message>
        <source>&amp;Local Clock</source>
        <translation>Hora &amp;local</translation>
    </message>
    <message>
        <source>&amp;24-Hour Clock</source>
        <translation>Reloj de &amp;24 horas</translation>
    </message>
    <message>
        <source>&amp;Mouse</source>
        <translation>&amp;Ratón</translation>
    </message>
    <message>
        <source>On &amp;Move</source>
        <translation>Al &amp;mover</translation>
    </message>
    <message>
        <source>On &amp;Click</source>
        <translation>Al hacer &amp;clic</translation>
    </message>
    <message>
        <source>&amp;PAngle</source>
        <translation>Á&amp;ngulo P</translation>
    </message>
    <message>
        <source>Parallactic O&amp;ff</source>
        <translation>Paraláctico &amp;desactivado</translation>
    </message>
    <message>
        <source>Parallactic O&amp;n</source>
        <translation>Paraláctico &amp;activado</translation>
    </message>
    <message>
        <source>&amp;Reminders...</source>
        <translation>&amp;Recordatorios...</translation>
    </message>
    <message>
        <source>&amp;Locations</source>
        <translation>&amp;Lugares</translation>
    </message>
    <message>
        <source>&amp;Select A Location</source>
        <translation>&amp;Elegir un lugar</translation>
    </message>
    <message>
        <source>&amp;Edit A Location</source>
        <translation>E&amp;ditar un lugar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Exit (%1)</source>
        <translation>Salir (%1)</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Óptimo</translation>
    </message>
    <message>
        <source>V.Good</source>
        <translation>Muy bueno</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bueno</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Day  %1   %2 days remain</source>
        <translation>Día  %1   quedan %2 días</translation>
    </message>
    <message>
        <source> Click to Show Parallactic Angle View </source>
        <translation> Clic para ver el ángulo paraláctico </translation>
    </message>
    <message>
        <source>Time Zone</source>
        <translation>Zona horaria</translation>
    </message>
    <message>
        <source>Location #%1 </source>
        <translation>Lugar n.º %1 </translation>
    </message>
    <message>
        <source>The settings cannot be saved to
%1
(the file or its folder is not writable).

Close Quillmere without saving them? Choose No to keep it open while you make the folder writable.</source>
        <translation>No se pueden guardar los ajustes en
%1
(el archivo o su carpeta no admite escritura).

¿Cerrar Quillmere sin guardarlos? Elija No para dejarlo abierto mientras da permiso de escritura a la carpeta.</translation>
    </message>
</context>
<context>
    <name>FrmDetail</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Click to Halt Timer</source>
        <translation>Clic para detener el reloj</translation>
    </message>
</context>
<context>
    <name>FrmGlance</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
</context>
<context>
    <name>FrmList</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source> Close List Screen </source>
        <translation> Cerrar la lista </translation>
    </message>
    <message>
        <source>Clip&amp;Board</source>
        <translation>Porta&amp;papeles</translation>
    </message>
    <message>
        <source> Copy text to clipboard </source>
        <translation> Copiar el texto al portapapeles </translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source> Print a Calendar </source>
        <translation> Imprimir un calendario </translation>
    </message>
</context>
<context>
    <name>FrmLocation</name>
    <message>
        <source>User Location</source>
        <translation>Lugar del usuario</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source> Click on Desired Time Zone </source>
        <translation> Clic en la zona horaria deseada </translation>
    </message>
    <message>
        <source> Type part of a zone (Kolkata, Oslo) or pick one; empty for the whole-hour zone only </source>
        <translation> Escriba parte de una zona (Kolkata, Oslo) o elija una; vacío solo para la zona de horas enteras </translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Predeterminar</translation>
    </message>
    <message>
        <source> Make Displayed Data the Default </source>
        <translation> Hacer predeterminados los datos mostrados </translation>
    </message>
    <message>
        <source>Edit DB</source>
        <translation>Editar BD</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Hecho</translation>
    </message>
    <message>
        <source> Click When Finished </source>
        <translation> Clic al terminar </translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Time Zone</source>
        <translation>Zona horaria</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Local Clock zone</source>
        <translation>Zona de la hora local</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not a whole number from %3 to %4.</source>
        <translation>%1: «%2» no es un número entero de %3 a %4.</translation>
    </message>
    <message>
        <source>The location needs a name: type one, or pick a state and a city.</source>
        <translation>El lugar necesita un nombre: escriba uno o elija un estado y una ciudad.</translation>
    </message>
    <message>
        <source>A location&apos;s name holds at most %1 characters; this one has %2.</source>
        <translation>El nombre de un lugar admite como máximo %1 caracteres; este tiene %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time zone this computer knows: pick one from the list (Asia/Kolkata, Europe/Oslo) or leave the box empty for the whole-hour zone only.</source>
        <translation>«%1» no es una zona horaria que este equipo conozca: elija una de la lista (Asia/Kolkata, Europe/Oslo) o deje el cuadro vacío para usar solo la zona de horas enteras.</translation>
    </message>
    <message>
        <source>A longitude runs to %1 degrees and a latitude to %2; %3.%4 is beyond.</source>
        <translation>Una longitud llega hasta %1 grados y una latitud hasta %2; %3.%4 lo supera.</translation>
    </message>
    <message>
        <source>The city list holds no cities; type the place by hand.</source>
        <translation>La lista de ciudades está vacía; escriba el lugar a mano.</translation>
    </message>
    <message>
        <source> is no longer in the city list.</source>
        <translation> ya no está en la lista de ciudades.</translation>
    </message>
    <message>
        <source>The city list&apos;s record of %1 lacks a usable longitude, latitude or whole-hour time zone (-12 to 12).</source>
        <translation>El registro de %1 en la lista de ciudades no tiene una longitud, latitud o zona horaria entera (-12 a 12) válida.</translation>
    </message>
</context>
<context>
    <name>FrmPrint</name>
    <message>
        <source>Print Calendar</source>
        <translation>Imprimir calendario</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
</context>
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
    <name>FrmSelectDB</name>
    <message>
        <source>Database Functions</source>
        <translation>Funciones de la base de datos</translation>
    </message>
    <message>
        <source>Import Catches</source>
        <translation>Importar capturas</translation>
    </message>
    <message>
        <source>Log exports (*.csv *.json);;All files (*)</source>
        <translation>Exportaciones del diario (*.csv *.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export Catches</source>
        <translation>Exportar capturas</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;JSON files (*.json)</source>
        <translation>Archivos CSV (*.csv);;Archivos JSON (*.json)</translation>
    </message>
    <message>
        <source> DoubleClick on Year of Interest </source>
        <translation> Doble clic en el año deseado </translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source> Open Selected File </source>
        <translation> Abrir el archivo elegido </translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source> Delete Selected File </source>
        <translation> Borrar el archivo elegido </translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Compactar</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source> Import Catches from a CSV or JSON File into the Selected Year </source>
        <translation> Importar capturas de un archivo CSV o JSON al año elegido </translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source> Export the Selected Year with its Catches as CSV or JSON </source>
        <translation> Exportar el año elegido con sus capturas como CSV o JSON </translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source> Restore an Earlier Copy of the Selected File </source>
        <translation> Restaurar una copia anterior del archivo elegido </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source> Close and Exit </source>
        <translation> Cerrar y salir </translation>
    </message>
    <message>
        <source>No File Selected! </source>
        <translation>¡No se eligió ningún archivo! </translation>
    </message>
    <message>
        <source>No backup of %1 could be made: %2
The file opens as it is.</source>
        <translation>No se pudo hacer copia de %1: %2
El archivo se abre tal como está.</translation>
    </message>
    <message>
        <source>Create DataBase for </source>
        <translation>Crear base de datos para </translation>
    </message>
    <message>
        <source>DataBase already exists for </source>
        <translation>Ya existe la base de datos para </translation>
    </message>
    <message>
        <source>The DataBase for %1 could not be created: %2
No file was kept; use Create to try again.</source>
        <translation>No se pudo crear la base de datos de %1: %2
No se guardó ningún archivo; use Crear para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>Create DataBase</source>
        <translation>Crear base de datos</translation>
    </message>
    <message>
        <source>%1 is missing, but a copy of it is kept as %2.
Restore %1 from that copy?</source>
        <translation>Falta %1, pero hay una copia guardada como %2.
¿Restaurar %1 desde esa copia?</translation>
    </message>
    <message>
        <source>Restore DataBase</source>
        <translation>Restaurar base de datos</translation>
    </message>
    <message>
        <source>%1 could not be restored: %2
The copy is kept as it was.</source>
        <translation>No se pudo restaurar %1: %2
La copia se conserva tal como estaba.</translation>
    </message>
    <message>
        <source>Confirm to Delete Selected File </source>
        <translation>Confirme para borrar el archivo elegido </translation>
    </message>
    <message>
        <source> The file is not deleted.</source>
        <translation> El archivo no se borra.</translation>
    </message>
    <message>
        <source>Compact DataBases</source>
        <translation>Compactar bases de datos</translation>
    </message>
    <message>
        <source>Compacting Completed!</source>
        <translation>¡Compactación terminada!</translation>
    </message>
    <message>
        <source>Error Compacting Database!</source>
        <translation>¡Error al compactar la base de datos!</translation>
    </message>
    <message>
        <source>Repair Completed!
</source>
        <translation>¡Reparación terminada!
</translation>
    </message>
    <message>
        <source>Error Repairing Database!
%1
The file is kept as it was.</source>
        <translation>¡Error al reparar la base de datos!
%1
El archivo se conserva tal como estaba.</translation>
    </message>
    <message>
        <source>Repair DataBases</source>
        <translation>Reparar bases de datos</translation>
    </message>
</context>
<context>
    <name>FrmStatistics</name>
    <message>
        <source>Fish per day fished</source>
        <translation>Peces por día de pesca</translation>
    </message>
    <message>
        <source>The number over each bar: days fished</source>
        <translation>El número sobre cada barra: días de pesca</translation>
    </message>
    <message>
        <source>Catch Statistics</source>
        <translation>Estadísticas de capturas</translation>
    </message>
    <message>
        <source>This year&apos;s file (%1)</source>
        <translation>El archivo de este año (%1)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source> Copy the figures for a spreadsheet </source>
        <translation> Copiar las cifras para una hoja de cálculo </translation>
    </message>
    <message>
        <source>Records:</source>
        <translation>Registros:</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Every year file in the folder (%1)</source>
        <translation>Todos los archivos anuales de la carpeta (%1)</translation>
    </message>
    <message>
        <source>The log could not be read: %1</source>
        <translation>No se pudo leer el diario: %1</translation>
    </message>
</context>
<context>
    <name>FrmYearCal</name>
    <message>
        <source>Yearly Calendar</source>
        <translation>Calendario anual</translation>
    </message>
    <message>
        <source> DoubleClick to Select and Exit </source>
        <translation> Doble clic para elegir y salir </translation>
    </message>
    <message>
        <source>Done-Exit</source>
        <translation>Hecho</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Quillmere Help</source>
        <translation>Ayuda de Quillmere</translation>
    </message>
    <message>
        <source>The help file %1 is missing. Reinstall Quillmere, or delete the program folder&apos;s copy so that it is put back at the next start.</source>
        <translation>Falta el archivo de ayuda %1. Reinstale Quillmere o borre la copia de la carpeta del programa para que se reponga en el próximo inicio.</translation>
    </message>
</context>
<context>
    <name>ImportCatches</name>
    <message>
        <source>Import Catches</source>
        <translation>Importar capturas</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... y %1 más</translation>
    </message>
    <message>
        <source>%1 day(s) can be imported into %2.%3

</source>
        <translation>Se pueden importar %1 día(s) en %2.%3

</translation>
    </message>
    <message>
        <source>OK imports them; lines with problems are left out.</source>
        <translation>Aceptar los importa; las líneas con problemas se omiten.</translation>
    </message>
    <message>
        <source>%1 of these days already hold an entry. Yes overwrites those entries, No keeps them and imports the rest, Cancel imports nothing.</source>
        <translation>%1 de estos días ya tienen una entrada. Sí las sobrescribe, No las conserva e importa el resto, Cancelar no importa nada.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1.</source>
        <translation>No se importó nada: %1.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>No se importó nada: %1</translation>
    </message>
    <message>
        <source>The file holds no catch entry to import into %1.%2</source>
        <translation>El archivo no contiene capturas que importar en %1.%2</translation>
    </message>
    <message>
        <source>%1 day(s) of %2 now hold the imported entries%3.</source>
        <translation>%1 día(s) de %2 contienen ahora las entradas importadas%3.</translation>
    </message>
</context>
<context>
    <name>PhotoViewer</name>
    <message>
        <source>the file is missing</source>
        <translation>falta el archivo</translation>
    </message>
    <message>
        <source>The photo %1 cannot be shown: %2.</source>
        <translation>No se puede mostrar la foto %1: %2.</translation>
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
        <translation>Enero</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Puesta</translation>
    </message>
    <message>
        <source>Moon is Up</source>
        <translation>Luna visible</translation>
    </message>
    <message>
        <source>Moon has Set</source>
        <translation>Luna oculta</translation>
    </message>
    <message>
        <source> Length of day, Sunrise to Sunset </source>
        <translation> Duración del día, de la salida a la puesta del sol </translation>
    </message>
    <message>
        <source>Months Between</source>
        <translation>Meses entre</translation>
    </message>
    <message>
        <source>(1 - 12)</source>
        <translation>(1 – 12)</translation>
    </message>
    <message>
        <source>Major1 Between</source>
        <translation>Mayor1 entre</translation>
    </message>
    <message>
        <source>Days of Week</source>
        <translation>Días de la semana</translation>
    </message>
    <message>
        <source>(1-7, 1=Sun..7=Sat)</source>
        <translation>(1-7, 1=Dom..7=Sáb)</translation>
    </message>
    <message>
        <source>Moon Age</source>
        <translation>Edad lunar</translation>
    </message>
    <message>
        <source>(1-29)</source>
        <translation>(1–29)</translation>
    </message>
    <message>
        <source>Illumination Percent Between</source>
        <translation>Porcentaje iluminado entre</translation>
    </message>
    <message>
        <source>(Moon illumination 1-100)</source>
        <translation>(Iluminación lunar 1-100)</translation>
    </message>
    <message>
        <source>Daylight Hours &gt;</source>
        <translation>Horas de luz &gt;</translation>
    </message>
    <message>
        <source>(Greater than 1-14)</source>
        <translation>(Mayor que 1-14)</translation>
    </message>
    <message>
        <source>Best Fishing Days</source>
        <translation>Mejores días de pesca</translation>
    </message>
    <message>
        <source>Very Good Fishing Days</source>
        <translation>Días de pesca muy buenos</translation>
    </message>
    <message>
        <source>Either Major Between</source>
        <translation>Cualquier mayor entre</translation>
    </message>
    <message>
        <source>Total Taken &gt;=</source>
        <translation>Total capturado &gt;=</translation>
    </message>
    <message>
        <source>(Greater than or equal to)</source>
        <translation>(Mayor o igual que)</translation>
    </message>
    <message>
        <source>Moon Waxing</source>
        <translation>Luna creciente</translation>
    </message>
    <message>
        <source>Moon Waning</source>
        <translation>Luna menguante</translation>
    </message>
    <message>
        <source>Moon At Perigee</source>
        <translation>Luna en perigeo</translation>
    </message>
    <message>
        <source>All Rated Days</source>
        <translation>Todos los días valorados</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Major1</source>
        <translation>Mayor1</translation>
    </message>
    <message>
        <source>Day of Week</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>Rated Fishing Days</source>
        <translation>Días de pesca valorados</translation>
    </message>
    <message>
        <source>Total Taken</source>
        <translation>Total capturado</translation>
    </message>
    <message>
        <source>Sorted by Date</source>
        <translation>Ordenado por fecha</translation>
    </message>
    <message>
        <source>Sorted by Major1</source>
        <translation>Ordenado por mayor1</translation>
    </message>
    <message>
        <source>Sorted by Day of Week</source>
        <translation>Ordenado por día de la semana</translation>
    </message>
    <message>
        <source>Sorted by Fish Rating</source>
        <translation>Ordenado por valoración</translation>
    </message>
    <message>
        <source>Sorted by Total Taken</source>
        <translation>Ordenado por total capturado</translation>
    </message>
    <message>
        <source>Apogee Days</source>
        <translation>Días de apogeo</translation>
    </message>
    <message>
        <source>Perigee Days</source>
        <translation>Días de perigeo</translation>
    </message>
    <message>
        <source>Day before/after and Perigee</source>
        <translation>Día antes/después y perigeo</translation>
    </message>
    <message>
        <source>Weekends (Friday and Saturday)</source>
        <translation>Fines de semana (viernes y sábado)</translation>
    </message>
    <message>
        <source>Weekends(Saturday and Sunday)</source>
        <translation>Fines de semana (sábado y domingo)</translation>
    </message>
    <message>
        <source>Weekends(Friday - Sunday)</source>
        <translation>Fines de semana (viernes a domingo)</translation>
    </message>
    <message>
        <source>Week Days</source>
        <translation>Días laborables</translation>
    </message>
    <message>
        <source>Sundays</source>
        <translation>Domingos</translation>
    </message>
    <message>
        <source>Mondays</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesdays</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesdays</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursdays</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Fridays</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturdays</source>
        <translation>Sábados</translation>
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
<context>
    <name>UnitsMenu</name>
    <message>
        <source>&amp;Units</source>
        <translation>&amp;Unidades</translation>
    </message>
    <message>
        <source>&amp;Metric (cm, kg, °C)</source>
        <translation>&amp;Métrico (cm, kg, °C)</translation>
    </message>
    <message>
        <source>&amp;Imperial (in, lb, °F)</source>
        <translation>Sistema &amp;imperial (in, lb, °F)</translation>
    </message>
</context>
<context>
    <name>frmReport</name>
    <message>
        <source>Quillmere DataBase Report</source>
        <translation>Informe de la base de datos de Quillmere</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Error de datos:</translation>
    </message>
</context>
<context>
    <name>frmTable1</name>
    <message>
        <source>Taken With holds at most 255 characters.</source>
        <translation>Capturado con admite como máximo 255 caracteres.</translation>
    </message>
    <message>
        <source>Quillmere DataBase</source>
        <translation>Base de datos de Quillmere</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>&amp;Estadísticas</translation>
    </message>
    <message>
        <source>DBID:</source>
        <translation>N.º BD:</translation>
    </message>
    <message>
        <source>JulianDate:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>SunRise:</source>
        <translation>Salida del sol:</translation>
    </message>
    <message>
        <source>SunSet:</source>
        <translation>Puesta del sol:</translation>
    </message>
    <message>
        <source>MoonRise:</source>
        <translation>Salida de la luna:</translation>
    </message>
    <message>
        <source>MoonSet:</source>
        <translation>Puesta de la luna:</translation>
    </message>
    <message>
        <source>Major1:</source>
        <translation>Mayor1:</translation>
    </message>
    <message>
        <source>Major2:</source>
        <translation>Mayor2:</translation>
    </message>
    <message>
        <source>Minor1:</source>
        <translation>Menor1:</translation>
    </message>
    <message>
        <source>Minor2:</source>
        <translation>Menor2:</translation>
    </message>
    <message>
        <source>CivilTwilight:</source>
        <translation>Crepúsculo civil:</translation>
    </message>
    <message>
        <source>NauticalTwilight:</source>
        <translation>Crepúsculo náutico:</translation>
    </message>
    <message>
        <source>AstronomicalTwilight:</source>
        <translation>Crepúsculo astronómico:</translation>
    </message>
    <message>
        <source>IllumPercent:</source>
        <translation>Iluminación %:</translation>
    </message>
    <message>
        <source>MoonAge:</source>
        <translation>Edad lunar:</translation>
    </message>
    <message>
        <source>GraphicType:</source>
        <translation>Valoración:</translation>
    </message>
    <message>
        <source>Waxing:</source>
        <translation>Creciente:</translation>
    </message>
    <message>
        <source>Day of Year</source>
        <translation>Día del año</translation>
    </message>
    <message>
        <source>Day Light Hrs:</source>
        <translation>Horas de luz:</translation>
    </message>
    <message>
        <source>DaylightHours:</source>
        <translation>Horas de luz (dec.):</translation>
    </message>
    <message>
        <source>Total Taken:</source>
        <translation>Total capturado:</translation>
    </message>
    <message>
        <source>Taken With:</source>
        <translation>Capturado con:</translation>
    </message>
    <message>
        <source>Peak Time:</source>
        <translation>Hora punta:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notas:</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source> Click To Edit Record </source>
        <translation> Clic para editar el registro </translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source> Click To Update Record </source>
        <translation> Clic para actualizar el registro </translation>
    </message>
    <message>
        <source>Quillmere DataBase - %1</source>
        <translation>Base de datos de Quillmere - %1</translation>
    </message>
    <message>
        <source>Sorted by Date</source>
        <translation>Ordenado por fecha</translation>
    </message>
    <message>
        <source>Sat-Sun</source>
        <translation>Sáb-Dom</translation>
    </message>
    <message>
        <source>Fri-Sun</source>
        <translation>Vie-Dom</translation>
    </message>
    <message>
        <source>Record: %1 of %2 Record(s)</source>
        <translation>Registro: %1 de %2</translation>
    </message>
    <message>
        <source>Day before/after perigee</source>
        <translation>Día antes/después del perigeo</translation>
    </message>
    <message>
        <source>Perigee</source>
        <translation>Perigeo</translation>
    </message>
    <message>
        <source>Apogee</source>
        <translation>Apogeo</translation>
    </message>
    <message>
        <source>Moon is Waxing</source>
        <translation>Luna creciente</translation>
    </message>
    <message>
        <source>Moon is Waning</source>
        <translation>Luna menguante</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Error de datos:</translation>
    </message>
    <message>
        <source>Total Taken</source>
        <translation>Total capturado</translation>
    </message>
    <message>
        <source>Peak Time</source>
        <translation>Hora punta</translation>
    </message>
    <message>
        <source>Save changes to this day?</source>
        <translation>¿Guardar los cambios de este día?</translation>
    </message>
    <message>
        <source>Select Data Where</source>
        <translation>Seleccionar datos donde</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source> Select Data From Conditions of CheckBoxes </source>
        <translation> Seleccionar datos según las casillas marcadas </translation>
    </message>
    <message>
        <source>All Records</source>
        <translation>Todos los registros</translation>
    </message>
    <message>
        <source> Display ALL Records in Database </source>
        <translation> Mostrar TODOS los registros de la base de datos </translation>
    </message>
    <message>
        <source>Clear Text</source>
        <translation>Borrar texto</translation>
    </message>
    <message>
        <source> Clear TextBoxes </source>
        <translation> Vaciar los cuadros de texto </translation>
    </message>
    <message>
        <source>Clear Checks</source>
        <translation>Quitar marcas</translation>
    </message>
    <message>
        <source> UnCheck ALL CheckBoxes </source>
        <translation> Desmarcar TODAS las casillas </translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source> Display Report for Current Records </source>
        <translation> Mostrar el informe de los registros actuales </translation>
    </message>
    <message>
        <source>&amp;Table View</source>
        <translation>Vista de &amp;tabla</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Meses</translation>
    </message>
    <message>
        <source>&amp;Days</source>
        <translation>&amp;Días</translation>
    </message>
    <message>
        <source>These steps of the selection could not run and were passed over:
</source>
        <translation>Estos pasos de la selección no pudieron ejecutarse y se omitieron:
</translation>
    </message>
    <message>
        <source>ddd, MMMM,dd,yyyy</source>
        <extracomment>The record&apos;s date above its fields, a QLocale date format.</extracomment>
        <translation>dddd, d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
</context>
<context>
    <name>frmTable2</name>
    <message>
        <source>Species</source>
        <translation>Especie</translation>
    </message>
    <message>
        <source>Fish</source>
        <translation>Peces</translation>
    </message>
    <message>
        <source>Released</source>
        <translation>Liberados</translation>
    </message>
    <message>
        <source>Longest (%1)</source>
        <translation>Más largo (%1)</translation>
    </message>
    <message>
        <source>Heaviest (%1)</source>
        <translation>Más pesado (%1)</translation>
    </message>
    <message>
        <source>Quillmere DataBase</source>
        <translation>Base de datos de Quillmere</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Record: %1</source>
        <translation>Registro: %1</translation>
    </message>
    <message>
        <source>Data error event hit err:</source>
        <translation>Error de datos:</translation>
    </message>
</context>
</TS>
