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
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>Mausgesten beginnen mit: %1. Ändern: „Mausgesten“ im Menü des Desktops oder mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Das ist der Ring aller Aufgaben.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Das ist der Ring von %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>Tastenkürzel „%1“</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>Symbol „%1“</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>Objektname „%1“</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>Beschriftung „%1“</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>es ist ein Texteditor</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>es ist eine Liste oder Tabelle</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>es ist ein Rahmen für andere</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>es ist ein Bedienelement</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>es zeigt Webseiten</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>dem Namen nach eine Startseite</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>es ist der sichtbare Ausschnitt von %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>es steckt in %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>es ist nicht sichtbar</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>es ist zu klein</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>es ist ein einfaches %1, das nichts malt</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>ein anderes füllt es aus: %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>es nimmt Text an wie ein Texteditor</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>der Kopfzeile nach eine Tabelle</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>es ist eine Seite voller Bedienelemente</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>Inhalt eines Rollbereichs, der %1 % der Fläche füllt</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>es malt sich selbst und füllt %1 % der Fläche</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>Inhalt eines Rollbereichs, der %1 % der Fläche füllt, auf der sonst nichts eine Zeichnung zeigen kann</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>es malt sich selbst und füllt %1 % der Fläche, auf der sonst nichts eine Zeichnung zeigen kann</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>es füllt nur %1 % der Fläche</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>es ist nicht in der Mitte eines Hauptfensters</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>es gehört zu einem Formular, das entworfen wird</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>es ist eine Grafikansicht</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>es ist eine Fläche der Grafikbibliothek oder eines Fensters</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>bei einem früheren Start gewählt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>das Profil nennt die Klasse %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>view</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>keine; vielleicht ist noch keine Zeichnung offen</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>bleibt zu raten, eine Klasse von Qt selbst sagt zu wenig</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>Klassen der Ansichten</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>keine Ansicht</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>wird angelegt; kein Menü der Menüleiste heißt Extras</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>das Profil nennt es</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>laut Objektname</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>laut Beschriftung „%1“</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>Menü Extras</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>das Profil nennt %1, was zurzeit fehlt</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>die Aktion selbst heißt so</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>keine Aktion hat ein passendes Tastenkürzel, Symbol, passenden Objektnamen oder passende Beschriftung</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>%1 kann nicht geschrieben werden, neue Befehle werden vergessen</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 ist beschädigt, %2 wird verwendet</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 ist beschädigt, und es gibt keine gute Kopie davon</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 ist zu groß, die Befehle darin werden nicht angeboten</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>%1 kann nicht gelesen werden, die Befehle darin werden nicht angeboten</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 ist von einer neueren Version (%2), die Befehle darin werden nicht angeboten</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 ist keine Liste von Befehlen und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>es ist kein Objekt</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>unbekannter Schlüssel „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>„%1“ ist kein Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>„%1“ ist keine Liste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>„%1“ enthält etwas, das kein Name ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>„%1“ ist kein Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>„%1“ ist weder true noch false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>„trigger.button“ nennt keine Maustaste: „%1“</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>„trigger.modifiers“ nennt keine Taste: „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>„%1“ nennt keinen Auslöser: „%2“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>„%1“ braucht eine Datei und den Text um den Wert</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>„%1.triggers.%2“ nennt keinen Auslöser</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>„wellKnownCommands.%1“ nennt keine Aktion</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>„%1“ ist keine Richtung</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>„tasks“ nennt zwei Wege, die Aufgabe zu erkennen</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>„tasks.firstBindings.%1“ ist kein Objekt</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>„version“ fehlt oder ist keine Zahl</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>Version %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>„program“ ist „%1“, nicht „%2“</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>es ist zu lang</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>das Profil %1 wird nicht verwendet: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>%1 kann nicht gelesen werden, die Belegungen darin gelten nicht</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 war beschädigt und ist aus %2 wiederhergestellt</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 ist keine Datei, daher gibt es keine Kopie der Einstellungen</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>%1 kann nicht geschrieben werden, da ein anderes Programm %1.lock hält</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>es hat keine Widgets</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>es bringt eigene Gesten mit</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>%1 kann nicht geschrieben werden, Änderungen gelten bis zum Ende des Programms</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>ein beendeter Gastgeber kann nicht wieder starten</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>dieses Programm hat schon einen Gastgeber</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>es gibt kein Hauptfenster für den Gastgeber</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>es ist keine Bibliothek</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>es ist abgeschnitten</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>eine unbekannte Ausnahme</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>es gibt kein Modul „%1“</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>das Modul „%1“ kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>das Modul kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>„%1“ ist kein Modul: es fehlt %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>das Modul „%1“ konnte seine Version nicht nennen: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>das Modul „%1“ ist für Version %2 der Plattform, dies ist %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>das Modul „%1“ konnte nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>es gab kein Objekt zurück</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>das Modul „%1“ konnte nicht starten: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>laut Profil</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>nichts spricht dagegen</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>laut Einstellungen</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>die Einstellungen nennen keinen Auslöser: „%1“</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>OpenGL malt die Zeichnung, und solche Programme brauchen die rechte Taste</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>das Programm selbst ist auf %1 eingestellt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>„%1“ ist leer</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>Gesten sind aus, seit %1 in ihrem Code abgestürzt ist; zum Einschalten: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>%1 aus %2 entfernen</translation>
    </message>
</context>
</TS>
