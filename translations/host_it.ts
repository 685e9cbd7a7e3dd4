<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>Il programma non ha il comando «%1»; la sua direzione è vuota.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Il comando «%1» non esiste.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: non utilizzabile al momento.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: non disponibile al momento.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>La barra degli strumenti «%1» ora non lo contiene.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Appartiene alla barra degli strumenti «%1», che ora non c’è.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>Il menu «%1» ora non lo contiene.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Appartiene al menu «%1», che ora non c’è.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Adatta alla finestra</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>S&amp;trumenti</translation>
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
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>Impossibile aprire la guida ai gesti del mouse.</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
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
        <translation>pulsante sinistro</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>pulsante centrale</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>pulsante destro</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>pulsante indietro</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>pulsante avanti</translation>
    </message>
    <message>
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>I gesti del mouse iniziano con: %1. Per cambiare: «Gesti del mouse» nel menu del desktop, oppure mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Questo è l’anello di tutte le attività.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Questo è l’anello di %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>scorciatoia «%1»</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>icona «%1»</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>nome oggetto «%1»</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>etichetta «%1»</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>è un editor di testo</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>è un elenco o una tabella</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>è una cornice per altri</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>è un controllo</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>mostra pagine web</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>dal nome è una pagina iniziale</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>è la parte visibile di %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>si trova dentro %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>non è visibile</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>è troppo piccolo</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>è un semplice %1, che non dipinge nulla</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>un altro lo riempie: %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>accetta testo come un editor</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>dall’intestazione è una tabella</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>è una pagina di controlli</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>contenuto di un’area scorrevole che riempie il %1 % della superficie</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>si dipinge da sé e riempie il %1 % della superficie</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>contenuto di un’area scorrevole che riempie il %1 % della superficie, dove null’altro può mostrare un disegno</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>si dipinge da sé e riempie il %1 % della superficie, dove null’altro può mostrare un disegno</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>riempie solo il %1 % della superficie</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>non è al centro di una finestra principale</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>fa parte di un modulo in progettazione</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>è una vista grafica</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>è una superficie della libreria grafica o di una finestra</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>scelto in un avvio precedente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>il profilo nomina la sua classe %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>finestra</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>nessuna; forse nessun disegno è ancora aperto</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>da indovinare: una classe di Qt dice troppo poco</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>classi delle viste</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>non è una vista</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>attivatore</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>ne viene creato uno: nessun menu della barra si chiama Strumenti</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>lo nomina il profilo</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>secondo il nome oggetto</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>secondo l’etichetta «%1»</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>menu Strumenti</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>il profilo nomina %1, che al momento manca</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>l’azione stessa si chiama così</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>nessuna azione ha scorciatoia, icona, nome oggetto o etichetta corrispondente</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>impossibile scrivere %1, i nuovi comandi vanno persi</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 è danneggiato, si usa %2</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 è danneggiato e non ne esiste una copia buona</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 è troppo grande, i suoi comandi non vengono offerti</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>impossibile leggere %1, i suoi comandi non vengono offerti</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 è di una versione successiva (%2), i suoi comandi non vengono offerti</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 non è un elenco di comandi e resta com’è</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 al byte %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>non è un oggetto</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>chiave sconosciuta «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>«%1» non è un testo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>«%1» non è un elenco</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>«%1» contiene qualcosa che non è un nome</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>«%1» non è un oggetto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>«%1» non è né true né false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>«trigger.button» non nomina alcun pulsante del mouse: «%1»</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>«trigger.modifiers» non nomina alcun tasto: «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>«%1» non nomina alcun attivatore: «%2»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>«%1» richiede un file e ciò che circonda il valore</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>«%1.triggers.%2» non nomina alcun attivatore</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>«wellKnownCommands.%1» non nomina alcuna azione</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>«%1» non è una direzione</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>«tasks» indica due modi per riconoscere il compito</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>«tasks.firstBindings.%1» non è un oggetto</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>«version» manca o non è un numero</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>la versione %1 non è nota</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>«program» è «%1», non «%2»</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>è troppo lungo</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>il profilo %1 non viene usato: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>impossibile leggere %1, le sue assegnazioni non vengono usate</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 era danneggiato ed è stato ripristinato da %2</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 non è un file, quindi non si conserva una copia delle impostazioni</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>impossibile scrivere %1, perché un altro programma tiene %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>non ha widget</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>ha gesti propri</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>impossibile scrivere %1, le modifiche durano fino alla chiusura del programma</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>un host fermato non può ripartire</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>questo programma ha già un host</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>non c’è una finestra principale da ospitare</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>non è una libreria</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>è troncato</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>un’eccezione sconosciuta</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>non c’è il modulo «%1»</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>impossibile caricare il modulo «%1»: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>impossibile caricare il modulo: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>«%1» non è un modulo: manca %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>il modulo «%1» non ha indicato la sua versione: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>il modulo «%1» è per la versione %2 della piattaforma, questa è %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>impossibile creare il modulo «%1»: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>non ha dato alcun oggetto</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>il modulo «%1» non è partito: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>secondo il profilo</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>nulla dice il contrario</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>secondo le impostazioni</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>le impostazioni non nominano alcun attivatore: «%1»</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>OpenGL dipinge il disegno, e questi programmi usano il pulsante destro</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>il programma stesso è impostato su %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>«%1» è vuoto</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>i gesti sono disattivati da quando %1 si è chiuso in modo anomalo nel loro codice; per attivarli: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>togliere %1 da %2</translation>
    </message>
</context>
</TS>
