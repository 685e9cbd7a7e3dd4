<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 ya no está instalado.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>Sus comandos y direcciones se conservan. Vuelva a instalarlo para usarlos.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 no está hecho con Qt Widgets, así que los gestos no pueden funcionar en él.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>La parte de los gestos del ratón que %1 necesita no está instalada.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Instale el paquete gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Instale el paquete gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Este escritorio funciona sin X11, así que el anillo puede abrirse lejos del puntero.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Inicie sesión con X11 o instale XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>No se puede usar el perfil de %1: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Corrija o elimine ese archivo.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>Los cambios no se pueden guardar: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Haga que el archivo y su carpeta sean suyos y se puedan escribir.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>Los gestos están desactivados en los ajustes de %1.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 falló en el código de Mouse Gestures, por eso los gestos siguen desactivados en él.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Puede activarlos y probar de nuevo.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Mientras tanto se cambió el número de direcciones en otro lugar.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>Vaciar: %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>Intercambiar %1 y %2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Cuatro direcciones</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Ocho direcciones</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Activar los gestos</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Desactivar los gestos</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>El botón izquierdo solo es para dibujar. Mantenga con él Ctrl, Mayús, Alt o Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Cambiar qué inicia un gesto</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Volver a los primeros comandos</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>Dar a «%1» su propio anillo</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>Dar a «%1» el anillo común</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Primeros comandos</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>settings::CommandPanel</name>
    <message>
        <source>No command has this in its name.</source>
        <translation>Ningún comando contiene esto en su nombre.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Buscar comandos</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl y una flecha pone el comando elegido en esa dirección; Ctrl con Inicio, Re Pág, Fin o Av Pág en la intermedia.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Poner en</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (ahora %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Quitar del anillo</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Gestos (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Importado de %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gestos del ratón en %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impreso</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>La impresora no aceptó la hoja.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>¿Recuperar los primeros comandos de %1?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Todas las direcciones reciben los comandos que tenían antes de que nadie eligiera. Lo que inicia un gesto no cambia. Deshacer lo revierte.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Qué cambia</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 contiene lo que %2 ya tiene. Nada cambiaría.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 cambiaría lo siguiente en %2. Los ajustes actuales se conservan junto a los nuevos.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activados</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivados</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (habitual)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gestos</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Direcciones en uso</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Un gesto empieza con</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (de %2 direcciones)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: ahora %2, después %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Anillo de %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>el propio</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>compartido</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>el del archivo</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Cerrar el mensaje</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Se inicia con gestos</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Se inicia sin gestos</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>&amp;Activar los gestos</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Iniciar con &amp;gestos</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Iniciar con gestos</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 direcciones</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 direcciones</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Arrastre un comando de la lista a una dirección. Arrástrelo a otra para intercambiarlos, o fuera del anillo para quitarlo.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>Los gestos funcionan. %1 se inicia con ellos desde los menús del escritorio.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>Los gestos funcionarían. Actívelos aquí y luego inicie %1 desde los menús del escritorio.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>Estos son los comandos que casi todo programa tiene. Los demás de %1 aparecen aquí cuando se haya ejecutado una vez con gestos.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: mantener, arrastrar y seguir hacia un comando</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Anillo de una tarea</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Anillo:</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Para todas las tareas</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>Anillos &amp;propios</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Elegir las tareas que tienen su propio anillo</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Buscar programas</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>La barra espaciadora activa o desactiva los gestos de un programa.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>Buscando programas</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Buscando programas...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>Los menús del escritorio no muestran ningún programa en el que los gestos puedan funcionar. Hace falta un programa hecho con Qt Widgets.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Ningún programa contiene esto en su nombre.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Anillo de direcciones</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nada</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Recogido. La barra espaciadora en otra dirección los intercambia.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Intro pone aquí el comando elegido, Supr lo vacía, la barra espaciadora lo recoge.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gestos del ratón</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Buscando programas...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Barra principal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>&amp;Iniciar el programa</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primir...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>&amp;Buscar un comando</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Volver a los &amp;primeros comandos...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Restablecer...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Ningún programa</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>No se pudo iniciar %1.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Botón izquierdo</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Botón central</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Botón atrás</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Botón adelante</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Botón derecho</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
</context>
<context>
    <name>settings::TriggerField</name>
    <message>
        <source>Record what starts a gesture</source>
        <translation>Registrar qué inicia un gesto</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Pulse aquí un botón del ratón, con las teclas que se mantendrán. Con el teclado, elija de la lista.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Pulse aquí un botón del ratón, con Ctrl, Mayús, Alt o Meta si lo desea</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>o púlselo aquí</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Un gesto &amp;empieza con:</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>Qué inicia un gesto</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (habitual)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (%2 lo usa)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 usa este arrastre. Mientras inicie un gesto, %1 ya no lo recibe.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 está en marcha. El cambio se aplica en su próximo inicio.</translation>
    </message>
</context>
</TS>
