<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Geste</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>Richtung der Geste</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Alle Befehle</translation>
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
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Zum Sortieren klicken oder Strg+1, Strg+2 oder Strg+3 drücken</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Weggenommen von: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Alle selbst festgelegten Mausgesten werden gelöscht und auf die Voreinstellungen zurückgesetzt. Möchten Sie fortfahren?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Mausgesten</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Nur Befehle mit Mausgeste</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Suchen nach:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Mausgesten einschalten</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 Gesten</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 Gesten</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Liste drucken</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Befehle suchen</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Befehle und ihre Gesten</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Mausgeste</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a command, what it does</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Others</source>
        <translation>Sonstige</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Mausgesten...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Passt Mausgesten an:</translation>
    </message>
</context>
</TS>
