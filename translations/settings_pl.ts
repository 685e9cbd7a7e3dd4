<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 nie jest już zainstalowany.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>Polecenia i kierunki zostają. Zainstaluj go ponownie, aby ich używać.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 nie używa Qt Widgets, więc gesty nie mogą w nim działać.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>Część gestów myszy, której potrzebuje %1, nie jest zainstalowana.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Zainstaluj pakiet gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Zainstaluj pakiet gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Ten pulpit działa bez X11, więc pierścień może się otworzyć z dala od wskaźnika.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Zaloguj się z X11 albo zainstaluj XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>Nie można użyć profilu %1: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Popraw lub usuń ten plik.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>Nie można zachować zmian: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Spraw, by plik i jego folder należały do Ciebie i były zapisywalne.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>Gesty są wyłączone w ustawieniach %1.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 uległ awarii w kodzie Mouse Gestures, dlatego gesty pozostają w nim wyłączone.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Można je włączyć i spróbować ponownie.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Liczbę kierunków zmieniono tymczasem gdzie indziej.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>Opróżnij: %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>„%1”: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>Zamień %1 i %2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Cztery kierunki</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Osiem kierunków</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Włącz gesty</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Wyłącz gesty</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>Sam lewy przycisk służy do rysowania. Przytrzymaj z nim Ctrl, Shift, Alt lub Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Zmień to, co zaczyna gest</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Przywróć pierwsze polecenia</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>Nadaj „%1” własny pierścień</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>Użyj wspólnego pierścienia dla „%1”</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Pierwsze polecenia</translation>
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
        <translation>Żadne polecenie nie ma tego w nazwie.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Szukaj poleceń</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Polecenia</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl i strzałka umieszcza wybrane polecenie w tym kierunku; Ctrl z Home, Page Up, End lub Page Down w kierunku pośrednim.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Umieść w</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (teraz %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Zdejmij z pierścienia</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Gesty (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Wyeksportowano do %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Zaimportowano z %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gesty myszy w %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Wydrukowano</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>Drukarka nie przyjęła arkusza.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>Przywrócić pierwsze polecenia %1?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Wszystkie kierunki dostają polecenia sprzed jakiegokolwiek wyboru. To, co zaczyna gest, zostaje. Cofnij to odwraca.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Przywróć</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Co się zmieni</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Potem</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 zawiera to, co %2 już ma. Nic by się nie zmieniło.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 zmieniłby w %2 to, co poniżej. Obecne ustawienia zostają obok nowych.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>włączone</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wyłączone</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (zwykły)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nic</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gesty</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Używane kierunki</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Gest zaczyna</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (z %2 kierunków)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: teraz %2, potem %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Pierścień %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>własny</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>wspólny</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>ten z pliku</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Zamknij komunikat</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Uruchamia się z gestami</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Uruchamia się bez gestów</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>&amp;Włącz gesty</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Uruchamiaj z &amp;gestami</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Uruchamiaj z gestami</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 kierunki</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 kierunków</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Przeciągnij polecenie z listy na kierunek. Przeciągnij je na inny, aby je zamienić, albo poza pierścień, aby je zdjąć.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>Gesty działają. %1 uruchamia się z nimi z menu pulpitu.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>Gesty działałyby. Włącz je tutaj, a potem uruchom %1 z menu pulpitu.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>To polecenia, które ma niemal każdy program. Wszystkie inne z %1 pojawią się tu, gdy raz zadziała z gestami.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: przytrzymaj, przeciągnij i dalej do polecenia</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Pierścień zadania</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Pierścień:</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Dla wszystkich zadań</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>Własne pierś&amp;cienie</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Wybierz zadania, które mają własne pierścienie</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Szukaj programów</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programy</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>Spacja włącza lub wyłącza gesty programu.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>Szukanie programów</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Szukanie programów...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>Menu pulpitu nie pokazują programu, w którym gesty mogą działać. Potrzebny jest program używający Qt Widgets.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Żaden program nie ma tego w nazwie.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Pierścień kierunków</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nic</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Podniesione. Spacja przy innym kierunku zamienia oba.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Enter umieszcza tu wybrane polecenie, Delete opróżnia, spacja podnosi.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gesty myszy</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Szukanie programów...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Główny pasek narzędzi</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>&amp;Uruchom program</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importuj...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksportuj...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drukuj...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>&amp;Znajdź polecenie</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Przywróć &amp;pierwsze polecenia...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Przywróć...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Brak programu</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>Nie udało się uruchomić %1.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Lewy przycisk</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Środkowy przycisk</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Przycisk wstecz</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Przycisk dalej</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Prawy przycisk</translation>
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
</context>
<context>
    <name>settings::TriggerField</name>
    <message>
        <source>Record what starts a gesture</source>
        <translation>Zapisz to, co zaczyna gest</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Naciśnij tu przycisk myszy z klawiszami do przytrzymania. Z klawiatury wybierz z listy.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Naciśnij tu przycisk myszy, jeśli chcesz z Ctrl, Shift, Alt lub Meta</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>lub naciśnij tutaj</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Gest &amp;zaczyna:</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>Co zaczyna gest</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (zwykły)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (używa tego %2)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 sam używa tego przeciągnięcia. Dopóki zaczyna ono gest, %1 go nie otrzymuje.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 jest uruchomiony. Zmiana zadziała po następnym uruchomieniu.</translation>
    </message>
</context>
</TS>
