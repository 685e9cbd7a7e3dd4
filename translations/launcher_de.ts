<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>zeigen, welcher Befehl in welcher Richtung liegt</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>die Befehle zeigen, die das Programm bisher gezeigt hat</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>wählen, was eine Geste auslöst: right, middle, ctrl+right, ...; „default“ ist der übliche Auslöser</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>die ersten Belegungen wiederherstellen; der Auslöser bleibt</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>alle Belegungen als JSON ausgeben</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>eine solche Datei übernehmen, ganz oder gar nicht</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>den Ring mit seinen Befehlen zeichnen, zum Aufhängen</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>sagen, ob Gesten in dem Programm funktionieren können</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>das Programm starten, sagen, was darin wofür gehalten wird und warum, das als Profil ausgeben, das Programm beenden</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>auch aus den Menüs des Desktops mit Gesten starten</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>aus den Menüs des Desktops wie zuvor starten</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>Aufruf: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>unbekannte Option %1, siehe mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>kein Programm angegeben, siehe mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Aufruf:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Startet ein Zeichenprogramm mit Mausgesten: Halten Sie in der Zeichnung die rechte Taste, ziehen Sie, und ziehen Sie weiter zum gewünschten Befehl. „Mausgesten...“ in den Menüs des Programms zeigt, welcher Befehl in welcher Richtung liegt.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM ist ein beliebiges Programm mit Qt Widgets, 5 oder 6. Es wird nicht verändert. Ohne Programm öffnet sich ein Fenster, in dem sich all das mit der Maus erledigen lässt.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>diesen Text zeigen</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>die Version zeigen</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>das nächste Wort ist das Programm, auch wenn es mit „-“ beginnt</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE kann „-“ sein, für Standardausgabe oder Standardeingabe.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Exit-Status eines gestarteten Programms: sein eigener. 127: dieses Programm gibt es nicht. 126: es kann nicht mit Gesten laufen. 125: mouse-gestures ist nicht richtig eingerichtet oder aufgerufen. Eine Option endet mit 1, wenn sie nicht ausgeführt werden konnte; dann ist nichts geändert.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>die Standardeingabe kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>Gesten funktionieren in %1 nicht richtig, siehe die Zeilen mit „!“</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: dieses Programm gibt es nicht</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>Warnung: es gibt keine X11-Anzeige; unter Wayland kann der Ring neben dem Zeiger aufgehen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Um etwas davon zu ändern, bearbeiten Sie dieses Profil und speichern Sie es als %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 gehört Ihnen und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: in den Menüs des Desktops startet kein Eintrag dieses Programm</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>startet mit Gesten: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>%1 kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>startet wie zuvor: %1 ist gelöscht</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: es gab nichts zu löschen</translation>
    </message>
    <message>
        <source>program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>Plugin</translation>
    </message>
    <message>
        <source>display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>Gesten</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, nicht gefunden</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>erst nach dem Start bekannt: ein Skript</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>keines; Gesten brauchen ein Programm mit Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>nicht installiert</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>für Qt %1 nicht installiert</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland ohne X11; der Ring kann neben dem Zeiger aufgehen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland; das Programm verwendet X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>keiner; der Ring zeigt, was beim Öffnen unter ihm lag</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>kein eigenes</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>werden im laufenden Programm gesucht, siehe --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, laut Profil</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, noch nicht vorhanden</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>in den Einstellungen ausgeschaltet</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>eingeschaltet, %1 Stück</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>es %1, bevor es ein Hauptfenster mit Menüs gezeigt hat</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>es hat das Plugin in %1 Sekunden nicht geladen</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>es hat in %1 Sekunden kein Hauptfenster mit Menüs gezeigt; vielleicht wartet ein Dialog</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>wurde durch Signal %1 beendet</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>endete mit Status %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: die Datei darf nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: das ist ein Ordner, kein Programm</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: Gesten brauchen ein Programm mit Qt Widgets, und das ist keines</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>das Plugin libmousegestures ist nicht installiert</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 verwendet Qt %2, dessen Plugin libmousegestures-qt%2.so nicht installiert ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>„%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>ist kein Schlüssel einer solchen Datei</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>ist kein Objekt</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>ist keine Zeichenkette</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>hat „%1“, das schon in einer anderen Richtung liegt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>Zeile %1: das ist für Belegungen zu tief verschachtelt</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>Zeile 1: es ist kein Objekt</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>ist nicht %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>ist nicht „%1“</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>ist weder true noch false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>nennt keine Taste</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>ist weder 4 noch 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>von %1 ist noch kein Befehl bekannt; starten Sie es einmal mit „mouse-gestures %1“</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 hat nie einen Befehl „%2“ gezeigt; mouse-gestures --list-commands %1 nennt die vorhandenen</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>mehrere Befehle heißen „%1“: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Sonstige</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 Gesten (in Gebrauch)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 Gesten</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: das ist keine Datei</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: das ist zu lang für Belegungen</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>das wurde inzwischen anderswo geändert und bleibt daher</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>Gesten in %1: ein</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>Gesten in %1: aus</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>Auslöser: %1 (Voreinstellung)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>Auslöser: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>die Kennung eines Befehls hat keine Steuerzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>„%1“ ist keine der %2 Richtungen: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 lief noch nicht mit Gesten; hat es keinen Befehl „%2“, wird die Richtung leer</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>Auslöser bleibt: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, daher wird nichts importiert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>„%1“ nennt keinen Auslöser wie right, middle oder ctrl+right; „default“ ist der übliche des Programms</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>die linke Taste allein ist zum Zeichnen da, nehmen Sie eine Taste der Tastatur dazu, etwa ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Mausgesten in %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Halten Sie %1 und ziehen Sie. Ziehen Sie weiter zu einem Befehl, oder lassen Sie los, damit nichts geschieht.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>die linke Taste</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>die mittlere Taste</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>die rechte Taste</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>die Zurück-Taste</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>die Vorwärts-Taste</translation>
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
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>down</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>Sie sind zurzeit ausgeschaltet.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: ein Blatt ist ein PDF, seine Datei endet also auf .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>das Blatt konnte nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>einer Aufgabe wie SketcherWorkbench von FreeCAD einen eigenen Ring geben, oder wieder den gemeinsamen</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>ohne Gesten starten, wenn keine möglich sind</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>das Profil dieses Programms kennt keine Aufgaben</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>die Aufgabe „%1“ gibt es nicht; bekannt sind %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>Belegung</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, laut %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 laut %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, passend zu den Zeichnungen</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1; ctrl+right, wenn OpenGL die Zeichnung malt</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 hat keinen eigenen Ring, siehe mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>Ring von %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>ein Ring ist „own“ oder „shared“, nicht „%1“</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 in keiner Datei</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>Gesten wieder einschalten, nach einem Absturz oder wenn sie in den Einstellungen ausgeschaltet sind</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>aus, seit %1 in ihrem Code abgestürzt ist; zum Einschalten: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>einen Befehl in eine Richtung legen. COMMAND ist seine Kennung, seine Beschriftung oder „none“. DIRECTION ist up, left, down oder right; mit acht Gesten auch up-left, down-left, down-right oder up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>Mit --ring TASK am Ende betrifft --bind, --export, --import, --print oder --reset nur den Ring dieser Aufgabe.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>nennt keine Aufgabe</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>das Profil %1 wird nicht verwendet: Sein Name muss %2 sein</translation>
    </message>
</context>
</TS>
