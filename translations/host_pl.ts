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
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>Gesty myszy zaczynają się od: %1. Zmiana: „Gesty myszy” w menu pulpitu lub mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>To jest pierścień wszystkich zadań.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>To jest pierścień zadania %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>skrót „%1”</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>ikona „%1”</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>nazwa obiektu „%1”</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>podpis „%1”</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>to edytor tekstu</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>to lista lub tabela</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>to ramka dla innych</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>to element sterujący</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>pokazuje strony internetowe</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>z nazwy strona początkowa</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>to widoczna część %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>jest wewnątrz %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>nie jest widoczny</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>jest za mały</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>to zwykły %1, który niczego nie maluje</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>wypełnia go inny: %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>przyjmuje tekst jak edytor</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>z nagłówka tabela</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>to strona elementów sterujących</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>zawartość obszaru przewijania, który wypełnia %1 % powierzchni</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>sam się maluje i wypełnia %1 % powierzchni</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>zawartość obszaru przewijania, który wypełnia %1 % powierzchni, gdzie nic innego nie może pokazać rysunku</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>sam się maluje i wypełnia %1 % powierzchni, gdzie nic innego nie może pokazać rysunku</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>wypełnia tylko %1 % powierzchni</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>nie jest w środku głównego okna</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>jest częścią projektowanego formularza</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>to widok graficzny</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>to powierzchnia biblioteki graficznej lub okna</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>wybrany przy wcześniejszym uruchomieniu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>profil podaje klasę %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>okno</translation>
    </message>
    <message>
        <source>view</source>
        <translation>widok</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>brak; może nie otwarto jeszcze rysunku</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>do odgadnięcia; klasa samego Qt mówi za mało</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>klasy widoków</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>nie widok</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>wyzwalacz</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>zostaje utworzone, bo żadne menu paska nie nazywa się Narzędzia</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>podaje to profil</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>według nazwy obiektu</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>według podpisu „%1”</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>menu Narzędzia</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>profil podaje %1, czego teraz brak</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>sama akcja tak się nazywa</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>żadna akcja nie ma pasującego skrótu, ikony, nazwy obiektu ani podpisu</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>nie można zapisać %1, nowe polecenia zostaną zapomniane</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>plik %1 jest uszkodzony, użyto %2</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>plik %1 jest uszkodzony i nie ma jego dobrej kopii</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>plik %1 jest za duży, jego polecenia nie są oferowane</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>nie można odczytać %1, jego polecenia nie są oferowane</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>plik %1 jest z nowszej wersji (%2), jego polecenia nie są oferowane</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>plik %1 nie jest listą poleceń i zostaje bez zmian</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 w bajcie %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>to nie jest obiekt</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>nieznany klucz „%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>„%1” nie jest tekstem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>„%1” nie jest listą</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>„%1” zawiera coś, co nie jest nazwą</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>„%1” nie jest obiektem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>„%1” nie jest ani true, ani false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>„trigger.button” nie podaje przycisku myszy: „%1”</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>„trigger.modifiers” nie podaje klawisza: „%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>„%1” nie podaje wyzwalacza: „%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>„%1” wymaga pliku i tekstu wokół wartości</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>„%1.triggers.%2” nie podaje wyzwalacza</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>„wellKnownCommands.%1” nie podaje akcji</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>„%1” nie jest kierunkiem</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>„tasks” podaje dwa sposoby rozpoznania zadania</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>„tasks.firstBindings.%1” nie jest obiektem</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>brak „version” lub nie jest liczbą</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>wersja %1 nie jest znana</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>„program” to „%1”, a nie „%2”</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>to nie jest plik</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>jest za długi</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>profil %1 nie jest używany: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>nie można odczytać %1, jego przypisania nie są używane</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>plik %1 był uszkodzony i został przywrócony z %2</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 nie jest plikiem, więc kopia ustawień nie jest zachowana</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>nie można zapisać %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>nie można zapisać %1, bo inny program trzyma %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>nie ma widżetów</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>ma własne gesty</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>nie można zapisać %1, zmiany obowiązują do końca programu</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>zatrzymany gospodarz nie może ruszyć ponownie</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>ten program ma już gospodarza</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>nie ma głównego okna do obsłużenia</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>to nie jest biblioteka</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>jest ucięty</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>nieznany wyjątek</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>nie ma modułu „%1”</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>nie można wczytać modułu „%1”: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>nie można wczytać modułu: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>„%1” nie jest modułem: brakuje %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>moduł „%1” nie podał swojej wersji: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>moduł „%1” jest dla wersji %2 platformy, a to jest %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>nie można utworzyć modułu „%1”: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>nie zwrócił obiektu</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>moduł „%1” nie mógł ruszyć: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>według profilu</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>nic temu nie przeczy</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>według ustawień</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>ustawienia nie podają wyzwalacza: „%1”</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>rysunek maluje OpenGL, a takie programy potrzebują prawego przycisku</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>sam program jest ustawiony na %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>„%1” jest puste</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>gesty są wyłączone, odkąd %1 uległ awarii w ich kodzie; aby je włączyć: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>usunąć %1 z %2</translation>
    </message>
</context>
</TS>
