<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 non è più installato.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>I suoi comandi e le direzioni restano. Reinstallarlo per usarli.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 non usa Qt Widgets, quindi i gesti non possono funzionare.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>La parte dei gesti del mouse che serve a %1 non è installata.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Installare il pacchetto gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Installare il pacchetto gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Questo desktop è senza X11, quindi l&apos;anello può aprirsi lontano dal puntatore.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Accedere con X11 o installare XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>Il profilo di %1 non è utilizzabile: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Correggere o rimuovere quel file.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>Le modifiche non possono essere conservate: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Fare in modo che il file e la sua cartella siano propri e scrivibili.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>I gesti sono disattivati nelle impostazioni di %1.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 si è chiuso in modo anomalo nel codice di Mouse Gestures, perciò i gesti vi restano disattivati.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Si possono attivare e riprovare.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Nel frattempo il numero di direzioni è stato cambiato altrove.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>Svuotare: %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>Scambiare %1 e %2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Quattro direzioni</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Otto direzioni</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Attivare i gesti</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Disattivare i gesti</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>Il pulsante sinistro da solo serve a disegnare. Tenere premuto con esso Ctrl, Maiusc, Alt o Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Cambiare ciò che avvia un gesto</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Ripristinare i primi comandi</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>Dare a «%1» un proprio anello</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>Dare a «%1» l&apos;anello comune</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Primi comandi</translation>
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
        <translation>Nessun comando lo contiene nel nome.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Cerca comandi</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandi</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl e un tasto freccia mette il comando scelto in quella direzione; Ctrl con Home, Pag Su, Fine o Pag Giù in quella intermedia.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Metti in</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (ora %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Togliere dall&apos;anello</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Gesti (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Esportato in %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Importato da %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gesti del mouse in %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Stampato</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>La stampante non ha accettato il foglio.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>Ripristinare i primi comandi di %1?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Tutte le direzioni riprendono i comandi che avevano all&apos;inizio. Ciò che avvia un gesto resta. Annulla torna indietro.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Che cosa cambia</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Dopo</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 contiene ciò che %2 ha già. Non cambierebbe nulla.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 cambierebbe quanto segue in %2. Le impostazioni attuali restano accanto alle nuove.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivi</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivi</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (solito)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gesti</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Direzioni in uso</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Un gesto inizia con</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (di %2 direzioni)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: ora %2, dopo %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Anello di %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>il proprio</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>condiviso</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>quello del file</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Chiudi il messaggio</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Si avvia con i gesti</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Si avvia senza gesti</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>&amp;Attiva i gesti</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Avvia con i &amp;gesti</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Avvia con i gesti</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 direzioni</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 direzioni</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Trascinare un comando dall&apos;elenco in una direzione. Trascinarlo in un&apos;altra per scambiarli, o fuori dall&apos;anello per toglierlo.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>I gesti funzionano. %1 si avvia con essi dai menu del desktop.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>I gesti funzionerebbero. Attivarli qui, poi avviare %1 dai menu del desktop.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>Questi sono i comandi che quasi ogni programma ha. Tutti gli altri di %1 compaiono qui dopo che è stato avviato una volta con i gesti.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: tenere, trascinare e proseguire verso un comando</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Anello di un&apos;attività</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Anello:</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Per tutte le attività</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>Anelli &amp;propri</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Scegliere le attività che hanno un proprio anello</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Cerca programmi</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmi</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>La barra spaziatrice attiva o disattiva i gesti di un programma.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>Ricerca dei programmi</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Ricerca dei programmi...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>I menu del desktop non mostrano alcun programma in cui i gesti possano funzionare. Serve un programma fatto con Qt Widgets.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Nessun programma lo contiene nel nome.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Anello delle direzioni</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: niente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Preso. La barra spaziatrice su un&apos;altra direzione li scambia.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Invio mette qui il comando scelto, Canc lo svuota, la barra spaziatrice lo prende.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gesti del mouse</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>Ricerca dei programmi...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Barra principale</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>&amp;Avvia il programma</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Stampa...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>&amp;Trova un comando</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Ripristina i &amp;primi comandi...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Ripristina...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Nessun programma</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>Impossibile avviare %1.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Pulsante sinistro</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Pulsante centrale</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Pulsante indietro</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Pulsante avanti</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Pulsante destro</translation>
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
</context>
<context>
    <name>settings::TriggerField</name>
    <message>
        <source>Record what starts a gesture</source>
        <translation>Registrare ciò che avvia un gesto</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Premere qui un pulsante del mouse, con i tasti da tenere. Con la tastiera, scegliere dall&apos;elenco.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Premere qui un pulsante del mouse, volendo con Ctrl, Maiusc, Alt o Meta</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>o premerlo qui</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Un gesto &amp;inizia con:</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>Che cosa avvia un gesto</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (solito)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (usato da %2)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 usa questo trascinamento. Finché avvia un gesto, %1 non lo riceve più.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 è in esecuzione. La modifica vale dal prossimo avvio.</translation>
    </message>
</context>
</TS>
