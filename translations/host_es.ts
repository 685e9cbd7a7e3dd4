<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>El programa no tiene la orden «%1»; su dirección queda vacía.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>El comando «%1» no existe.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: no se puede usar en este momento.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: no disponible en este momento.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>La barra de herramientas «%1» no lo contiene ahora.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Pertenece a la barra de herramientas «%1», que ahora no está.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>El menú «%1» no lo contiene ahora.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Pertenece al menú «%1», que ahora no está.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Desfase</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>No se puede abrir la guía de los gestos del ratón.</translation>
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
        <source>left button</source>
        <translation>botón izquierdo</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>botón central</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>botón derecho</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>botón atrás</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>botón adelante</translation>
    </message>
    <message>
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>Los gestos del ratón empiezan con: %1. Para cambiarlo: «Gestos del ratón» en el menú del escritorio, o mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Este es el anillo de todas las tareas.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Este es el anillo de %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>atajo «%1»</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>icono «%1»</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>nombre de objeto «%1»</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>rótulo «%1»</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>es un editor de texto</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>es una lista o una tabla</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>es un marco para otros</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>es un control</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>muestra páginas web</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>por su nombre, una página de inicio</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>es la parte visible de %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>está dentro de %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>no es visible</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>es demasiado pequeño</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>es un simple %1, que no pinta nada</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>otro lo llena: %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>acepta texto como un editor</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>por su cabecera, una tabla</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>es una página de controles</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>contenido de un área desplazable que llena el %1 % de la superficie</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>se pinta a sí mismo y llena el %1 % de la superficie</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>contenido de un área desplazable que llena el %1 % de la superficie, donde nada más puede mostrar un dibujo</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>se pinta a sí mismo y llena el %1 % de la superficie, donde nada más puede mostrar un dibujo</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>solo llena el %1 % de la superficie</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>no está en el centro de una ventana principal</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>es parte de un formulario que se está diseñando</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>es una vista gráfica</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>es una superficie de la biblioteca gráfica o de una ventana</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>elegido en un inicio anterior</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>el perfil nombra su clase %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>ventana</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>ninguna; quizá aún no hay un dibujo abierto</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>queda por adivinar: una clase de Qt dice muy poco</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>clases de vistas</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>no es vista</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>activador</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>se crea uno, pues ningún menú de la barra se llama Herramientas</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>lo nombra el perfil</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>según su nombre de objeto</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>según su rótulo «%1»</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>menú Herramientas</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>el perfil nombra %1, que ahora no está</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>la propia acción se llama así</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>ninguna acción tiene un atajo, icono, nombre de objeto o rótulo que corresponda</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>no se puede escribir %1, los comandos nuevos se olvidan</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 está dañado, se usa %2</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 está dañado y no hay una copia buena</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 es demasiado grande, sus comandos no se ofrecen</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>no se puede leer %1, sus comandos no se ofrecen</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 es de una versión posterior (%2), sus comandos no se ofrecen</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 no es una lista de comandos y se deja como está</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 en el byte %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>no es un objeto</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>clave desconocida «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>«%1» no es un texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>«%1» no es una lista</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>«%1» contiene algo que no es un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>«%1» no es un objeto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>«%1» no es ni true ni false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>«trigger.button» no nombra ningún botón del ratón: «%1»</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>«trigger.modifiers» no nombra ninguna tecla: «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>«%1» no nombra ningún activador: «%2»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>«%1» necesita un archivo y lo que rodea al valor</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>«%1.triggers.%2» no nombra ningún activador</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>«wellKnownCommands.%1» no nombra ninguna acción</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>«%1» no es una dirección</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>«tasks» indica dos maneras de conocer la tarea</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>«tasks.firstBindings.%1» no es un objeto</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>falta «version» o no es un número</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>la versión %1 no se conoce</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>«program» es «%1», no «%2»</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>es demasiado largo</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>el perfil %1 no se usa: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>no se puede leer %1, sus asignaciones no se usan</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 estaba dañado y se ha restaurado de %2</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 no es un archivo, así que no se guarda copia de los ajustes</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>no se puede escribir %1, porque otro programa retiene %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>no tiene widgets</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>trae gestos propios</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>no se puede escribir %1, los cambios duran hasta que acabe el programa</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>un anfitrión detenido no puede volver a iniciarse</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>este programa ya tiene un anfitrión</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>no hay una ventana principal que alojar</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>no es una biblioteca</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>está cortado</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>una excepción desconocida</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>no hay módulo «%1»</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>no se puede cargar el módulo «%1»: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>no se puede cargar el módulo: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>«%1» no es un módulo: le falta %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>el módulo «%1» no pudo decir su versión: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>el módulo «%1» es para la versión %2 de la plataforma, esta es %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>no se pudo crear el módulo «%1»: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>no dio ningún objeto</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>el módulo «%1» no pudo iniciarse: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>según el perfil</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>nada dice lo contrario</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>según los ajustes</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>los ajustes no nombran ningún activador: «%1»</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>OpenGL pinta el dibujo, y esos programas necesitan el botón derecho</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>el propio programa está ajustado a %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>«%1» está vacío</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>los gestos están desactivados desde que %1 falló en su código; para activarlos: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>quitar %1 de %2</translation>
    </message>
</context>
</TS>
