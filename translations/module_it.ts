<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Gesto</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>Direzione del gesto</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Su a sinistra</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Giù a sinistra</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Giù a destra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Su a destra</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Tutti i comandi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Fare clic per ordinare, oppure premere Ctrl+1, Ctrl+2 o Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Tolto a: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Tutti i gesti del mouse definiti dall&apos;utente verranno eliminati e sostituiti con quelli predefiniti. Continuare?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gesti del mouse</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Categoria:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Comandi con un gesto</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Cerca:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Attiva i gesti del mouse</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 gesti</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 gesti</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Stampa elenco</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Cerca comandi</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Comandi e relativi gesti</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Gesto del mouse</translation>
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
        <translation>Altri</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Gesti del mouse...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Personalizza i gesti del mouse:</translation>
    </message>
</context>
</TS>
