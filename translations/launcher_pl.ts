<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>pokaż, które polecenie jest w którym kierunku</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>pokaż polecenia, które program dotąd pokazał</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>wybierz wyzwalacz gestu: right, middle, ctrl+right, ...; „default” to zwykły</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>przywróć początkowe przypisania; wyzwalacz pozostaje</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>zapisz wszystkie przypisania jako JSON</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>wczytaj taki plik, w całości albo wcale</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>narysuj pierścień z poleceniami, do powieszenia na ścianie</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>powiedz, czy gesty mogą działać w programie</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>uruchom program, powiedz, co i dlaczego za co uznano, wypisz to jako profil, zakończ program</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>uruchamiaj go z gestami także z menu pulpitu</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>uruchamiaj go z menu pulpitu jak przedtem</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>użycie: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>nieznana opcja %1, zobacz mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>nie podano programu, zobacz mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Użycie:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Uruchamia program kreślarski z gestami myszy: przytrzymaj prawy przycisk na rysunku, przeciągnij i przesuń dalej do wybranego polecenia. „Gesty myszy...” w menu programu pokazuje, które polecenie jest w którym kierunku.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM to dowolny program korzystający z Qt Widgets 5 lub 6. Nie jest zmieniany. Bez programu otwiera się okno, w którym to wszystko można zrobić myszą.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>pokaż ten tekst</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>pokaż wersję</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>następne słowo to program, nawet jeśli zaczyna się od „-”</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE może być „-”, dla standardowego wyjścia lub wejścia.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Stan wyjścia uruchomionego programu: jego własny. 127: nie ma takiego programu. 126: nie można go uruchomić z gestami. 125: mouse-gestures jest źle zainstalowany lub użyty. Opcja kończy się stanem 1, gdy się nie powiodła; wtedy nic nie jest zmienione.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>nie można odczytać standardowego wejścia</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standardowe wejście</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>gesty nie będą dobrze działać w %1, zobacz wiersze z „!”</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: nie ma takiego programu</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>nie można zapisać standardowego wyjścia</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>uwaga: nie ma ekranu X11; pod Waylandem pierścień może otworzyć się z dala od wskaźnika</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Aby coś zmienić, wyedytuj ten profil i zapisz go jako %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 należy do użytkownika i pozostaje bez zmian</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: żaden wpis pulpitu nie uruchamia tego programu</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>nie można odczytać %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>nie można zapisać %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>uruchamia się z gestami: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>nie można usunąć %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>uruchamia się jak przedtem: usunięto %1</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: nie było nic do usunięcia</translation>
    </message>
    <message>
        <source>program</source>
        <translation>program</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>wtyczka</translation>
    </message>
    <message>
        <source>display</source>
        <translation>ekran</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>kompozytor</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>views</source>
        <translation>widoki</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ustawienia</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>gesty</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>wyzwalacz</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, nie znaleziono</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>nieznane przed uruchomieniem: skrypt</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>brak; gesty wymagają programu korzystającego z Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>niezainstalowana</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>niezainstalowana dla Qt %1</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland bez X11; pierścień może otworzyć się z dala od wskaźnika</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland; program użyje X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>działa</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>brak; pierścień pokazuje to, co było pod nim przy otwarciu</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>brak własnego</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>szukane w działającym programie, zobacz --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, według profilu</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, nie można zapisać</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, jeszcze nie istnieje</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>wyłączone w ustawieniach</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>włączone, liczba: %1</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>%1, zanim pokazał główne okno z menu</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>nie wczytał wtyczki w ciągu %1 s</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>nie pokazał głównego okna z menu w ciągu %1 s; może czeka okno dialogowe</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>został zakończony sygnałem %1</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>zakończył się ze stanem %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: tego pliku nie wolno wykonywać</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: to folder, a nie program</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: gesty wymagają programu korzystającego z Qt Widgets, a ten z niego nie korzysta</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>wtyczka libmousegestures nie jest zainstalowana</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 używa Qt %2, a wtyczka libmousegestures-qt%2.so nie jest zainstalowana</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>„%1” występuje dwukrotnie</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>nie jest kluczem takiego pliku</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>brakuje</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>nie jest obiektem</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>nie jest tekstem</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>zawiera znak sterujący</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>ma „%1”, które jest już w innym kierunku</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>wiersz %1: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>wiersz %1: zbyt głębokie zagnieżdżenie</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>wiersz 1: to nie jest obiekt</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>to nie %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>to nie „%1”</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>nie jest ani true, ani false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>nie podaje przycisku</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>nie jest ani 4, ani 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>nie jest jeszcze znane żadne polecenie programu %1; uruchom go raz przez „mouse-gestures %1”</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 nigdy nie pokazał polecenia „%2”; mouse-gestures --list-commands %1 podaje istniejące</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>kilka poleceń nazywa się „%1”: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>gesty: %1 (używane)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>gesty: %1</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: nie ma takiego pliku</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: to nie jest plik</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: plik jest za długi</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>w międzyczasie zmieniono to gdzie indziej, więc pozostaje</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>gesty w programie %1: włączone</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>gesty w programie %1: wyłączone</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>wyzwalacz: %1 (domyślny)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>wyzwalacz: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>identyfikator polecenia nie ma znaków sterujących</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>„%1” nie jest jednym z %2 kierunków: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 nie działał jeszcze z gestami; jeśli nie ma polecenia „%2”, kierunek stanie się pusty</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>wyzwalacz pozostaje: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, więc nic nie zaimportowano</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>„%1” nie podaje wyzwalacza, takiego jak right, middle lub ctrl+right; „default” to zwykły wyzwalacz programu</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>sam lewy przycisk służy do rysowania, dodaj klawisz, np. ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gesty myszy w programie %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Przytrzymaj %1 i przeciągnij. Przesuń dalej do polecenia albo puść, aby nic nie robić.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>lewy przycisk</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>środkowy przycisk</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>prawy przycisk</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>przycisk Wstecz</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>przycisk Dalej</translation>
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
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>góra</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>góra, lewo</translation>
    </message>
    <message>
        <source>left</source>
        <translation>lewo</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>dół, lewo</translation>
    </message>
    <message>
        <source>down</source>
        <translation>dół</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>dół, prawo</translation>
    </message>
    <message>
        <source>right</source>
        <translation>prawo</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>góra, prawo</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>W tej chwili są wyłączone.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategoria</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nic</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: arkusz jest plikiem PDF, więc nazwa kończy się na .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 nie jest zainstalowany</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>nie udało się narysować arkusza: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>nadaj zadaniu, np. SketcherWorkbench we FreeCAD, własny pierścień albo znów wspólny</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>uruchom bez gestów, jeśli nie są możliwe</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>profil tego programu nie zna zadań</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>nie ma zadania „%1”; znane to %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>przypis.</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, według %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 według %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, stosownie do rysunków</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1; ctrl+right, gdy rysunek maluje OpenGL</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 nie ma własnego pierścienia, zobacz mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>pierścień: %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>pierścień to „own” albo „shared”, a nie „%1”</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 w żadnym pliku</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>włącz gesty ponownie, po awarii lub gdy są wyłączone w ustawieniach</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>wyłączone, odkąd %1 uległ awarii w ich kodzie; aby je włączyć: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>umieść polecenie w kierunku. COMMAND to jego identyfikator, nazwa albo „none”. DIRECTION to up, left, down lub right; przy ośmiu gestach także up-left, down-left, down-right lub up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>Z --ring TASK na końcu --bind, --export, --import, --print lub --reset dotyczy tylko pierścienia tego zadania.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>nie podaje zadania</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>profil %1 nie jest używany: jego nazwa musi brzmieć %2</translation>
    </message>
</context>
</TS>
