<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>Das Programm hat keinen Befehl „%1“; die Richtung ist leer.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Den Befehl „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: zurzeit nicht möglich.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: zurzeit nicht vorhanden.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>In der Werkzeugleiste „%1“ fehlt der Befehl zurzeit.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Der Befehl gehört zur Werkzeugleiste „%1“, die zurzeit fehlt.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>Im Menü „%1“ fehlt der Befehl zurzeit.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Der Befehl gehört zum Menü „%1“, das zurzeit fehlt.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Stutzen</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>Die Anleitung zu den Mausgesten lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
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
        <translation>linke Taste</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>mittlere Taste</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>rechte Taste</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>Zurück-Taste</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>Vorwärts-Taste</translation>
    </message>
    <message>
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>Mausgesten beginnen mit %1. Ändern: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Das ist der Ring aller Aufgaben.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Das ist der Ring von %1.</translation>
    </message>
</context>
</TS>
