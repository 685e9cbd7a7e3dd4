<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>Kategoria</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Gest</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>Kierunek gestu</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Góra, lewo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewo</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Dół, lewo</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Dół, prawo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawo</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Góra, prawo</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>Wszystkie polecenia</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>Kliknij, aby posortować, albo naciśnij Ctrl+1, Ctrl+2 lub Ctrl+3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>Odebrano poleceniu: %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>Wszystkie gesty myszy zdefiniowane przez użytkownika zostaną usunięte i zastąpione domyślnymi. Czy kontynuować?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gesty myszy</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategoria:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>Polecenia z przypisanym gestem</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>Szukaj:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>Włącz gesty myszy</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 gesty</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 gestów</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Przywróć domyślne</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>Drukuj listę</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategoria</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>Szukaj poleceń</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>Polecenia i ich gesty</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>Gest myszy</translation>
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
        <translation>Inne</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>Gesty myszy...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>Dostosowuje gesty myszy:</translation>
    </message>
</context>
</TS>
