<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 ist nicht mehr installiert.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>Befehle und Richtungen bleiben erhalten. Installieren Sie es wieder, um sie zu nutzen.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 verwendet Qt Widgets nicht, daher können Gesten darin nicht funktionieren.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>Der Teil der Mausgesten, den %1 braucht, ist nicht installiert.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Installieren Sie das Paket gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Installieren Sie das Paket gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Dieser Desktop läuft ohne X11, daher kann sich der Ring neben dem Zeiger öffnen.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Melden Sie sich mit X11 an oder installieren Sie XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>Das Profil von %1 lässt sich nicht verwenden: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Berichtigen oder entfernen Sie diese Datei.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>Änderungen lassen sich nicht speichern: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Sorgen Sie dafür, dass Datei und Ordner Ihnen gehören und beschreibbar sind.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>In den Einstellungen von %1 sind die Gesten ausgeschaltet.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 ist im Code von Mouse Gestures abgestürzt, deshalb bleiben die Gesten darin aus.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Sie können sie einschalten und es noch einmal versuchen.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Die Zahl der Richtungen wurde inzwischen anderswo geändert.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>%1 leeren</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>%1 und %2 tauschen</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Vier Richtungen</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Acht Richtungen</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Gesten einschalten</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Gesten ausschalten</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>Die linke Taste allein ist zum Zeichnen da. Halten Sie dazu Strg, Umschalt, Alt oder Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Auslöser der Geste ändern</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Auf die ersten Befehle zurücksetzen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>„%1“ einen eigenen Ring geben</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>„%1“ den gemeinsamen Ring geben</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Erste Befehle</translation>
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
        <translation>Kein Befehl hat das in seinem Namen.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Befehle suchen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Strg und eine Pfeiltaste legt den gewählten Befehl in diese Richtung; Strg mit Pos1, Bild auf, Ende oder Bild ab in die dazwischen.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Legen nach</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (jetzt %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Vom Ring nehmen</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Gesten (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Importiert aus %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Mausgesten in %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>Der Drucker hat das Blatt nicht angenommen.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>Die ersten Befehle von %1 zurückholen?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Alle Richtungen bekommen die Befehle, die sie vor jeder Wahl hatten. Der Auslöser bleibt. „Rückgängig“ nimmt das zurück.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 enthält, was %2 schon hat. Nichts würde sich ändern.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 würde in %2 Folgendes ändern. Die jetzigen Einstellungen bleiben neben den neuen erhalten.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (üblich)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gesten</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Richtungen in Gebrauch</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Eine Geste beginnt mit</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (von %2 Richtungen)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: jetzt %2, danach %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Ring von %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>eigener</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>gemeinsamer</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>der aus der Datei</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Startet mit Gesten</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Startet ohne Gesten</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>Gesten &amp;einschalten</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Mit &amp;Gesten starten</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Mit Gesten starten</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 Richtungen</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 Richtungen</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Ziehen Sie einen Befehl aus der Liste in eine Richtung. Ziehen Sie ihn weiter in eine andere, um beide zu tauschen, oder vom Ring, um ihn wegzunehmen.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>Gesten funktionieren. %1 startet aus den Menüs des Desktops mit ihnen.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>Gesten würden funktionieren. Schalten Sie sie hier ein und starten Sie dann %1 aus den Menüs des Desktops.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>Diese Befehle hat fast jedes Programm. Alle anderen von %1 erscheinen hier, wenn es einmal mit Gesten gelaufen ist.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: halten, ziehen und weiter zu einem Befehl</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Ring einer Aufgabe</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Ring:</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Für alle Aufgaben</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>Eig&amp;ene Ringe</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Aufgaben wählen, die eigene Ringe haben</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Programme suchen</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>Die Leertaste schaltet die Gesten eines Programms ein oder aus.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>Suche nach Programmen</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Suche nach Programmen...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>Die Menüs des Desktops zeigen kein Programm, in dem Gesten funktionieren können. Gesten brauchen ein Programm, das Qt Widgets verwendet.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Kein Programm hat das in seinem Namen.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Ring der Richtungen</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nichts</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Aufgenommen. Die Leertaste bei einer anderen Richtung tauscht beide.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Eingabe legt den gewählten Befehl hierher, Entf leert die Richtung, die Leertaste nimmt den Befehl auf.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Mausgesten</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Suche nach Programmen...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>Programm &amp;starten</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig:</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>Befehl &amp;suchen</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Auf die &amp;ersten Befehle zurücksetzen...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Zurücksetzen...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Kein Programm</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>%1 konnte nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Linke Taste</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Mittlere Taste</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Zurück-Taste</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Vorwärts-Taste</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Rechte Taste</translation>
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
</context>
<context>
    <name>settings::TriggerField</name>
    <message>
        <source>Record what starts a gesture</source>
        <translation>Auslöser einer Geste aufnehmen</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Drücken Sie hier eine Maustaste, mit den Tasten, die gehalten werden sollen. Mit der Tastatur wählen Sie aus der Liste.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Drücken Sie hier eine Maustaste, wenn Sie wollen mit Strg, Umschalt, Alt oder Meta</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>oder hier drücken</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Eine Geste &amp;beginnt mit:</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>Was eine Geste auslöst</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (üblich)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (%2 nutzt sie)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 nutzt dieses Ziehen selbst. Solange es eine Geste beginnt, bekommt %1 es nicht mehr.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 läuft gerade. Die Änderung gilt ab dem nächsten Start.</translation>
    </message>
</context>
</TS>
