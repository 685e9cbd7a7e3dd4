<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>Program nie ma polecenia „%1”; jego kierunek jest pusty.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Nie ma polecenia „%1”.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: w tej chwili nie można użyć.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: w tej chwili niedostępne.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>Pasek narzędzi „%1” teraz go nie zawiera.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Należy do paska narzędzi „%1”, którego teraz nie ma.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>Menu „%1” teraz go nie zawiera.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Należy do menu „%1”, którego teraz nie ma.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linia</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Odsunięcie</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Utnij</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Dopasuj widok</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Narzędzia</translation>
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
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>Nie można otworzyć przewodnika po gestach myszy.</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
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
        <translation>lewy przycisk</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>środkowy przycisk</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>prawy przycisk</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>przycisk wstecz</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>przycisk dalej</translation>
    </message>
    <message>
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>Gesty myszy zaczynają się od: %1. Zmiana: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>To jest pierścień wszystkich zadań.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>To jest pierścień zadania %1.</translation>
    </message>
</context>
</TS>
