<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>mostrare quale comando è in quale direzione</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>mostrare i comandi che il programma ha mostrato finora</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>scegliere che cosa avvia un gesto: right, middle, ctrl+right, ...; «default» è quello solito</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>ripristinare le assegnazioni iniziali; l’attivatore resta</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>scrivere tutte le assegnazioni come JSON</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>importare un file di questo tipo, tutto o niente</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>disegnare l’anello con i suoi comandi, da appendere</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>dire se i gesti possono funzionare nel programma</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>avviare il programma, dire che cosa viene preso per che cosa e perché, scriverlo come profilo, terminare il programma</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>avviarlo con i gesti anche dai menu del desktop</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>avviarlo dai menu del desktop come prima</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>uso: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>opzione sconosciuta %1, vedere mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>nessun programma indicato, vedere mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Avvia un programma di disegno con i gesti del mouse: tenere premuto il pulsante destro nel disegno, trascinare e proseguire verso il comando voluto. «Gesti del mouse...» nei menu del programma mostra quale comando è in quale direzione.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM è un qualsiasi programma realizzato con Qt Widgets, 5 o 6. Non viene modificato. Senza programma si apre una finestra in cui si può fare tutto con il mouse.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>mostrare questo testo</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostrare la versione</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>la parola seguente è il programma, anche se comincia con «-»</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE può essere «-», per standard output o standard input.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Stato di uscita di un programma avviato: il suo. 127: programma inesistente. 126: non può essere eseguito con i gesti. 125: mouse-gestures non è installato o usato correttamente. Un’opzione termina con 1 se non è riuscita; in tal caso non cambia nulla.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>impossibile leggere lo standard input</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>i gesti non possono funzionare bene in %1, vedere le righe con «!»</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: programma inesistente</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>impossibile scrivere sullo standard output</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>attenzione: non c’è uno schermo X11; con Wayland l’anello può aprirsi lontano dal puntatore</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Per cambiare qualcosa, modificare questo profilo e salvarlo come %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 è un file proprio e resta com’è</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: nessuna voce del desktop lo avvia</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>impossibile leggere %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>si avvia con i gesti: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>impossibile eliminare %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>si avvia come prima: %1 è stato eliminato</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: non c’era nulla da eliminare</translation>
    </message>
    <message>
        <source>program</source>
        <translation>programma</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>plugin</translation>
    </message>
    <message>
        <source>display</source>
        <translation>schermo</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>compositor</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>profilo</translation>
    </message>
    <message>
        <source>views</source>
        <translation>viste</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>opzioni</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>gesti</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>attivatore</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, non trovato</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>noto solo dopo l’avvio: è uno script</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>nessuno; i gesti richiedono un programma realizzato con Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>non installato</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>non installato per Qt %1</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland senza X11; l’anello può aprirsi lontano dal puntatore</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland; il programma userà X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>nessuno; l’anello mostra ciò che aveva sotto quando si è aperto</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>nessuno specifico</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>cercate nel programma in esecuzione, vedere --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, secondo il profilo</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, non scrivibile</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, non ancora presente</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>disattivati nelle impostazioni</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>attivi, in numero di %1</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>%1 prima di mostrare una finestra principale con menu</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>non ha caricato il plugin in %1 secondi</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>non ha mostrato una finestra principale con menu in %1 secondi; forse attende un dialogo</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>è stato terminato dal segnale %1</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>è terminato con stato %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: il file non è eseguibile</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: è una cartella, non un programma</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: i gesti richiedono un programma realizzato con Qt Widgets, e questo non lo è</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>il plugin libmousegestures non è installato</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 usa Qt %2, ma il plugin libmousegestures-qt%2.so non è installato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>«%1» compare due volte</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>non è una chiave di un file di questo tipo</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>non è un oggetto</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>non è una stringa</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contiene un carattere di controllo</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>ha «%1», già in un’altra direzione</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>riga %1: troppi livelli per delle assegnazioni</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>riga 1: non è un oggetto</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>non è %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>non è «%1»</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>non è né true né false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>non indica alcun pulsante</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>non è né 4 né 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>di %1 non è ancora noto alcun comando; avviarlo una volta con «mouse-gestures %1»</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 non ha mai mostrato un comando «%2»; mouse-gestures --list-commands %1 elenca quelli che ha</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>più comandi si chiamano «%1»: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Altri</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 gesti (in uso)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 gesti</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: file inesistente</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: non è un file</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: è troppo lungo per delle assegnazioni</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>nel frattempo è stato cambiato altrove, quindi resta</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>gesti in %1: attivi</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>gesti in %1: disattivati</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>si avviano con: %1 (predefinito)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>si avviano con: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>l’identificatore di un comando non ha caratteri di controllo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>«%1» non è una delle %2 direzioni: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 non è ancora stato avviato con i gesti; se non ha il comando «%2», la direzione diventa vuota</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>i gesti si avviano ancora con: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, quindi non viene importato nulla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>«%1» non indica un attivatore, come right, middle o ctrl+right; «default» è quello solito del programma</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>il pulsante sinistro da solo serve a disegnare, aggiungere un tasto, come ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gesti del mouse in %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Tenere premuto %1 e trascinare. Proseguire verso un comando, o rilasciare per non fare nulla.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>il pulsante sinistro</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>il pulsante centrale</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>il pulsante destro</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>il pulsante Indietro</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>il pulsante Avanti</translation>
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
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>su</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>su a sinistra</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sinistra</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>giù a sinistra</translation>
    </message>
    <message>
        <source>down</source>
        <translation>giù</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>giù a destra</translation>
    </message>
    <message>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>su a destra</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>Al momento sono disattivati.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: un foglio è un PDF, quindi il file termina in .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 non è installato</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>impossibile disegnare il foglio: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>dare a un compito, come SketcherWorkbench di FreeCAD, un anello proprio, o di nuovo quello comune</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>avviarlo senza gesti se non sono possibili</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>il profilo di questo programma non conosce compiti</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>il compito «%1» non esiste; sono noti %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>assegnaz.</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, secondo %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 secondo %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, secondo i disegni</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1; ctrl+right se OpenGL dipinge il disegno</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 non ha un anello proprio, vedere mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>anello di %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>un anello è «own» o «shared», non «%1»</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 in nessun file</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>riattivare i gesti, dopo un arresto anomalo o se sono disattivati nelle impostazioni</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>disattivati da quando %1 si è chiuso in modo anomalo nel loro codice; per attivarli: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>mettere un comando in una direzione. COMMAND è il suo identificatore, il suo testo o «none». DIRECTION è up, left, down o right; con otto gesti anche up-left, down-left, down-right o up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>Con --ring TASK alla fine, --bind, --export, --import, --print o --reset riguarda solo l’anello di quel compito.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>non nomina alcun compito</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>il profilo %1 non viene usato: il suo nome deve essere %2</translation>
    </message>
</context>
</TS>
