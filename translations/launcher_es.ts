<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>mostrar qué comando hay en cada dirección</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>mostrar los comandos que el programa ha mostrado hasta ahora</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>elegir qué inicia un gesto: right, middle, ctrl+right, ...; «default» es lo habitual</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>restablecer las asignaciones iniciales; el activador se mantiene</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>escribir todas las asignaciones como JSON</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>importar un archivo así, entero o nada</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>dibujar el anillo con sus comandos, para colgarlo en la pared</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>decir si los gestos pueden funcionar en el programa</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>iniciar el programa, decir qué se toma por qué y por qué motivo, escribirlo como perfil y terminar el programa</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>iniciarlo con gestos también desde los menús del escritorio</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>iniciarlo desde los menús del escritorio como antes</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>uso: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>opción desconocida %1, vea mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>no se ha indicado un programa, vea mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Inicia un programa de dibujo con gestos del ratón: mantenga el botón derecho en el dibujo, arrastre y siga hacia el comando deseado. «Gestos del ratón...» en los menús del programa muestra qué comando hay en cada dirección.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM es cualquier programa hecho con Qt Widgets, 5 o 6. No se modifica. Sin programa se abre una ventana en la que todo esto se hace con el ratón.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>mostrar este texto</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostrar la versión</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>la palabra siguiente es el programa, aunque empiece por «-»</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE puede ser «-», para la salida o la entrada estándar.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Estado de salida de un programa iniciado: el suyo. 127: no existe este programa. 126: no se puede ejecutar con gestos. 125: mouse-gestures no está bien instalado o bien usado. Una opción termina con 1 si no se pudo realizar; entonces no cambia nada.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>no se puede leer la entrada estándar</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>los gestos no pueden funcionar bien en %1, vea las líneas con «!»</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: no existe este programa</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>no se puede escribir en la salida estándar</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>aviso: no hay pantalla X11; en Wayland el anillo puede abrirse lejos del puntero</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Para cambiarlo, edite este perfil y guárdelo como %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 es suyo y se queda como está</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: ninguna entrada del escritorio lo inicia</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>no se puede leer %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>se inicia con gestos: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>no se puede eliminar %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>se inicia como antes: se ha eliminado %1</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: no había nada que eliminar</translation>
    </message>
    <message>
        <source>program</source>
        <translation>programa</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>plugin</translation>
    </message>
    <message>
        <source>display</source>
        <translation>pantalla</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>compositor</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>perfil</translation>
    </message>
    <message>
        <source>views</source>
        <translation>vistas</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>gestos</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>activador</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, no encontrado</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>no se sabe antes de ejecutarlo: es un script</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>ninguno; los gestos necesitan un programa hecho con Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>no instalado</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>no instalado para Qt %1</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland sin X11; el anillo puede abrirse lejos del puntero</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland; el programa usará X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en marcha</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>ninguno; el anillo muestra lo que había debajo al abrirse</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>ninguno propio</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>se buscan en el programa en marcha, vea --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, según el perfil</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, no se puede escribir</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, aún no existe</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>desactivados en los ajustes</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>activados, %1 en total</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>%1 antes de mostrar una ventana principal con menús</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>no ha cargado el complemento en %1 segundos</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>no ha mostrado una ventana principal con menús en %1 segundos; quizá espera un diálogo</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>terminó por la señal %1</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>terminó con el estado %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: el archivo no es ejecutable</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: es una carpeta, no un programa</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: los gestos necesitan un programa hecho con Qt Widgets, y este no lo es</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>el complemento libmousegestures no está instalado</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 usa Qt %2, pero el complemento libmousegestures-qt%2.so no está instalado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>«%1» aparece dos veces</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>no es una clave de un archivo así</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>no es un objeto</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>no es una cadena</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contiene un carácter de control</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>tiene «%1», que ya está en otra dirección</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>línea %1: demasiados niveles para unas asignaciones</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>línea 1: no es un objeto</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>no es %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>no es «%1»</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>no es ni true ni false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>no nombra ningún botón</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>no es ni 4 ni 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>aún no se conoce ningún comando de %1; inícielo una vez con «mouse-gestures %1»</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 nunca ha mostrado un comando «%2»; mouse-gestures --list-commands %1 dice cuáles tiene</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>varios comandos se llaman «%1»: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 gestos (en uso)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 gestos</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: no existe este archivo</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: no es un archivo</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: es demasiado largo para unas asignaciones</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>esto se cambió entretanto en otro lugar, así que se queda</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>gestos en %1: activados</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>gestos en %1: desactivados</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>se inician con: %1 (predeterminado)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>se inician con: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>el identificador de un comando no tiene caracteres de control</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>«%1» no es una de las %2 direcciones: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 aún no se ha ejecutado con gestos; si no tiene el comando «%2», la dirección quedará vacía</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>los gestos se siguen iniciando con: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, así que no se importa nada</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>«%1» no nombra un activador, como right, middle o ctrl+right; «default» es el habitual del programa</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>el botón izquierdo solo es para dibujar, añada una tecla, como ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gestos del ratón en %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Mantenga %1 y arrastre. Siga hacia un comando, o suelte para no hacer nada.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>el botón izquierdo</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>el botón central</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>el botón derecho</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>el botón Atrás</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>el botón Adelante</translation>
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
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>arriba a la izquierda</translation>
    </message>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>abajo a la izquierda</translation>
    </message>
    <message>
        <source>down</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>Ahora están desactivados.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: una hoja es un PDF, así que su archivo termina en .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 no está instalado</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>no se pudo dibujar la hoja: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>dar a una tarea, como SketcherWorkbench de FreeCAD, un anillo propio, o de nuevo el común</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>iniciarlo sin gestos si no son posibles</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>el perfil de este programa no conoce tareas</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>no existe la tarea «%1»; se conocen %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>asignac.</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, según %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 según %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, según los dibujos</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1; ctrl+right si OpenGL pinta el dibujo</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 no tiene anillo propio, vea mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>anillo de %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>un anillo es «own» o «shared», no «%1»</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 en ningún archivo</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>volver a activar los gestos, tras un fallo o si están desactivados en los ajustes</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>desactivados desde que %1 falló en su código; para activarlos: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>poner un comando en una dirección. COMMAND es su identificador, su texto o «none». DIRECTION es up, left, down o right; con ocho gestos también up-left, down-left, down-right o up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>Con --ring TASK al final, --bind, --export, --import, --print o --reset se refiere solo al anillo de esa tarea.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>no nombra ninguna tarea</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>el perfil %1 no se usa: su nombre debe ser %2</translation>
    </message>
</context>
</TS>
