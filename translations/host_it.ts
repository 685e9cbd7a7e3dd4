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
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>I gesti del mouse iniziano con %1. Per cambiare: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Questo è l’anello di tutte le attività.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Questo è l’anello di %1.</translation>
    </message>
</context>
</TS>
