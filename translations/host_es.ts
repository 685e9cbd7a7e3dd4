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
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>Los gestos del ratón empiezan con %1. Para cambiarlo: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Este es el anillo de todas las tareas.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Este es el anillo de %1.</translation>
    </message>
</context>
</TS>
