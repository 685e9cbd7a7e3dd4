<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>O programa não tem o comando “%1”; a sua direção está vazia.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>O comando “%1” não existe.</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: não pode ser usado no momento.</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: não disponível no momento.</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>A barra de ferramentas “%1” não o contém agora.</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>Pertence à barra de ferramentas “%1”, que não está presente agora.</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>O menu “%1” não o contém agora.</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>Pertence ao menu “%1”, que não está presente agora.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Deslocamento</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Aparar</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>Ajustar à janela</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Ferramen&amp;tas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>Não foi possível abrir o guia dos gestos do mouse.</translation>
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
        <translation>botão esquerdo</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>botão do meio</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>botão direito</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>botão recuar</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>botão avançar</translation>
    </message>
    <message>
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>Os gestos do rato começam com %1. Para mudar: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Este é o anel de todas as tarefas.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Este é o anel de %1.</translation>
    </message>
</context>
</TS>
