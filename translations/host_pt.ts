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
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>Os gestos do rato começam com: %1. Para mudar: “Gestos do rato” no menu do ambiente, ou mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>Este é o anel de todas as tarefas.</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>Este é o anel de %1.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>atalho “%1”</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>ícone “%1”</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>nome de objeto “%1”</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>rótulo “%1”</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>é um editor de texto</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>é uma lista ou tabela</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>é uma moldura para outros</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>é um controle</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>mostra páginas da web</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>pelo nome, uma página inicial</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>é a parte visível de %1</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>está dentro de %1</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>não está visível</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>é pequeno demais</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>é um simples %1, que não pinta nada</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>outro o preenche: %1</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>aceita texto como um editor</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>pelo cabeçalho, uma tabela</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>é uma página de controles</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>conteúdo de uma área rolável que preenche %1 % da superfície</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>pinta a si mesmo e preenche %1 % da superfície</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>conteúdo de uma área rolável que preenche %1 % da superfície, onde nada mais pode mostrar um desenho</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>pinta a si mesmo e preenche %1 % da superfície, onde nada mais pode mostrar um desenho</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>preenche apenas %1 % da superfície</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>não está no meio de uma janela principal</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>faz parte de um formulário em criação</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>é uma vista gráfica</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>é uma superfície da biblioteca gráfica ou de uma janela</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>escolhido em um início anterior</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>o perfil cita a classe %1</translation>
    </message>
    <message>
        <source>window</source>
        <translation>janela</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>nenhuma; talvez ainda não haja desenho aberto</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>fica para adivinhar: uma classe do Qt diz muito pouco</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>classes das vistas</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>não é vista</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>gatilho</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>um é criado, pois nenhum menu da barra se chama Ferramentas</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>o perfil o cita</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>segundo o nome de objeto</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>segundo o rótulo “%1”</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>menu Ferramentas</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>o perfil cita %1, que não está presente agora</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>a própria ação tem esse nome</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>nenhuma ação tem atalho, ícone, nome de objeto ou rótulo correspondente</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>não foi possível gravar %1, os novos comandos são esquecidos</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 está danificado, %2 é usado</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 está danificado e não há uma cópia boa</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 é grande demais, seus comandos não são oferecidos</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>não foi possível ler %1, seus comandos não são oferecidos</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 é de uma versão mais nova (%2), seus comandos não são oferecidos</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 não é uma lista de comandos e fica como está</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 no byte %2</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>não é um objeto</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>chave desconhecida “%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>“%1” não é um texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>“%1” não é uma lista</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>“%1” contém algo que não é um nome</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>“%1” não é um objeto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>“%1” não é true nem false</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>“trigger.button” não cita nenhum botão do mouse: “%1”</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>“trigger.modifiers” não cita nenhuma tecla: “%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>“%1” não cita nenhum gatilho: “%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>“%1” precisa de um arquivo e do que cerca o valor</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>“%1.triggers.%2” não cita nenhum gatilho</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>“wellKnownCommands.%1” não cita nenhuma ação</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>“%1” não é uma direção</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>“tasks” cita duas maneiras de conhecer a tarefa</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>“tasks.firstBindings.%1” não é um objeto</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>“version” falta ou não é um número</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>a versão %1 não é conhecida</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>“program” é “%1”, não “%2”</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>é longo demais</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>o perfil %1 não é usado: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>não foi possível ler %1, suas atribuições não são usadas</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 estava danificado e foi restaurado de %2</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 não é um arquivo, então não se guarda cópia das configurações</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>não foi possível gravar %1</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>não foi possível gravar %1, pois outro programa retém %1.lock</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>não tem widgets</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>traz gestos próprios</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>não foi possível gravar %1, as mudanças valem até o fim do programa</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>um hospedeiro parado não pode recomeçar</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>este programa já tem um hospedeiro</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>não há janela principal para hospedar</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>não é uma biblioteca</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>está truncado</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>uma exceção desconhecida</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>não há módulo “%1”</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>não foi possível carregar o módulo “%1”: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>não foi possível carregar o módulo: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>“%1” não é um módulo: falta %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>o módulo “%1” não informou sua versão: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>o módulo “%1” é para a versão %2 da plataforma, esta é %3</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>não foi possível criar o módulo “%1”: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>não deu nenhum objeto</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>o módulo “%1” não pôde iniciar: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>segundo o perfil</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>nada diz o contrário</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>segundo as configurações</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>as configurações não citam nenhum gatilho: “%1”</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>o OpenGL pinta o desenho, e esses programas precisam do botão direito</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>o próprio programa está ajustado para %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>“%1” está vazio</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>os gestos estão desligados desde que %1 falhou no código deles; para os ligar: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>remover %1 de %2</translation>
    </message>
</context>
</TS>
