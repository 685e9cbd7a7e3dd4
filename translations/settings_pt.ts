<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 já não está instalado.</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>Os seus comandos e direções mantêm-se. Instale-o de novo para os usar.</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 não é feito com Qt Widgets, por isso os gestos não podem funcionar nele.</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>A parte dos gestos do rato de que %1 precisa não está instalada.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>Instale o pacote gesturewidget-qt6.</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>Instale o pacote gesturewidget.</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>Este ambiente funciona sem X11, por isso o anel pode abrir longe do ponteiro.</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>Inicie sessão com X11 ou instale o XWayland.</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>O perfil de %1 não pode ser usado: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>Corrija ou remova esse ficheiro.</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>As alterações não podem ser guardadas: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>Torne o ficheiro e a sua pasta seus e graváveis.</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>Os gestos estão desligados nas definições de %1.</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 falhou no código de Mouse Gestures, por isso os gestos ficam desligados nele.</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>Pode ligá-los e tentar de novo.</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>Entretanto, o número de direções foi alterado noutro lugar.</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>Esvaziar: %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>Trocar %1 e %2</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>Quatro direções</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>Oito direções</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>Ligar os gestos</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>Desligar os gestos</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>O botão esquerdo sozinho serve para desenhar. Mantenha com ele Ctrl, Shift, Alt ou Meta.</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>Alterar o que inicia um gesto</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>Repor os primeiros comandos</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>Dar a &quot;%1&quot; um anel próprio</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>Dar a &quot;%1&quot; o anel comum</translation>
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
        <translation>Direção</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>Primeiros comandos</translation>
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
        <translation>Nenhum comando tem isto no nome.</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>Procurar comandos</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl e uma seta põe o comando escolhido nessa direção; Ctrl com Home, Page Up, End ou Page Down na intermédia.</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>&amp;Pôr em</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (agora %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>Tirar do anel</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>Gestos (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportado para %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Importado de %1</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gestos do rato em %1</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impresso</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>A impressora não aceitou a folha.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>Repor os primeiros comandos de %1?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>Todas as direções recebem os comandos que tinham no início. O que inicia um gesto mantém-se. Anular desfaz isto.</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Repor</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>O que muda</translation>
    </message>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Depois</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 tem o que %2 já tem. Nada mudaria.</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 alteraria o seguinte em %2. As definições atuais ficam ao lado das novas.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ligados</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desligados</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (habitual)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>Gestos</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>Direções em uso</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>Um gesto começa com</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (de %2 direções)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: agora %2, depois %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>Anel de %1</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>o próprio</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>compartilhado</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>o do arquivo</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>Fechar a mensagem</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>Inicia com gestos</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>Inicia sem gestos</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>&amp;Ligar os gestos</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>Iniciar com &amp;gestos</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>Iniciar com gestos</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 direções</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 direções</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>Arraste um comando da lista para uma direção. Arraste-o para outra para os trocar, ou para fora do anel para o tirar.</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>Os gestos funcionam. %1 inicia com eles a partir dos menus do ambiente.</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>Os gestos funcionariam. Ligue-os aqui e depois inicie %1 a partir dos menus do ambiente.</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>Estes são os comandos que quase todos os programas têm. Todos os outros de %1 aparecem aqui depois de ser executado uma vez com gestos.</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: manter, arrastar e seguir para um comando</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>Anel de uma tarefa</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>&amp;Anel:</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>Para todas as tarefas</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>Anéis &amp;próprios</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>Escolher as tarefas que têm anéis próprios</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>Procurar programas</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>A barra de espaços liga ou desliga os gestos de um programa.</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>A procurar programas</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>A procurar programas...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>Os menus do ambiente não mostram nenhum programa em que os gestos possam funcionar. É preciso um programa feito com Qt Widgets.</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>Nenhum programa tem isto no nome.</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>Anel de direções</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: nada</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>Apanhado. A barra de espaços noutra direção troca os dois.</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Enter põe aqui o comando escolhido, Delete esvazia, a barra de espaços apanha-o.</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>Gestos do rato</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>A procurar programas...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Barra principal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>&amp;Iniciar o programa</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primir...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>&amp;Procurar um comando</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>Repor os &amp;primeiros comandos...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>Repor...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>Nenhum programa</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>Não foi possível iniciar %1.</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>Botão esquerdo</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Botão do meio</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>Botão recuar</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>Botão avançar</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Botão direito</translation>
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
        <translation>Registar o que inicia um gesto</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>Prima aqui um botão do rato, com as teclas a manter. Com o teclado, escolha da lista.</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>Prima aqui um botão do rato, se quiser com Ctrl, Shift, Alt ou Meta</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>ou prima-o aqui</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>Um gesto &amp;começa com:</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>O que inicia um gesto</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (habitual)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (usado por %2)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>%1 usa este arrastar. Enquanto iniciar um gesto, %1 deixa de o receber.</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 está em execução. A alteração vale a partir do próximo arranque.</translation>
    </message>
</context>
</TS>
