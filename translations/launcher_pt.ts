<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>mostrar qual comando está em qual direção</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>mostrar os comandos que o programa mostrou até agora</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>escolher o que inicia um gesto: right, middle, ctrl+right, ...; “default” é o usual</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>restaurar as atribuições iniciais; o gatilho permanece</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>gravar todas as atribuições como JSON</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>importar um arquivo assim, inteiro ou nada</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>desenhar o anel com seus comandos, para pendurar na parede</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>dizer se os gestos podem funcionar no programa</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>iniciar o programa, dizer o que é tomado pelo quê e por quê, escrever isso como perfil e encerrar o programa</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>iniciá-lo com gestos também pelos menus da área de trabalho</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>iniciá-lo pelos menus da área de trabalho como antes</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>uso: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>opção desconhecida %1, veja mouse-gestures --help</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>nenhum programa indicado, veja mouse-gestures --help</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>Inicia um programa de desenho com gestos do mouse: segure o botão direito no desenho, arraste e siga até o comando desejado. “Gestos do mouse...” nos menus do programa mostra qual comando está em qual direção.</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM é qualquer programa feito com Qt Widgets, 5 ou 6. Ele não é alterado. Sem programa, abre-se uma janela em que tudo isto se faz com o mouse.</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>mostrar este texto</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostrar a versão</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>a próxima palavra é o programa, mesmo que comece com “-”</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE pode ser “-”, para a saída ou a entrada padrão.</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>Código de saída de um programa iniciado: o dele. 127: o programa não existe. 126: não pode ser executado com gestos. 125: mouse-gestures não está instalado ou usado corretamente. Uma opção termina com 1 se não pôde ser feita; nada é alterado então.</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>não foi possível ler a entrada padrão</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>os gestos não funcionam bem em %1, veja as linhas com “!”</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: este programa não existe</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>não foi possível gravar na saída padrão</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>aviso: não há tela X11; no Wayland o anel pode abrir longe do ponteiro</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>Para mudar algo, edite este perfil e guarde-o como %1</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 é seu e fica como está</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: nenhuma entrada da área de trabalho o inicia</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>não foi possível ler %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>não foi possível gravar %1</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>inicia com gestos: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>não foi possível remover %1</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>inicia como antes: %1 foi removido</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: não havia nada para remover</translation>
    </message>
    <message>
        <source>program</source>
        <translation>programa</translation>
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
        <translation>tela</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>compositor</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>perfil</translation>
    </message>
    <message>
        <source>views</source>
        <translation>vistas</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>gestos</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>gatilho</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1, não encontrado</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>só se sabe ao executar: é um script</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>nenhum; os gestos precisam de um programa feito com Qt Widgets</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>não instalado</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>não instalado para Qt %1</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>Wayland sem X11; o anel pode abrir longe do ponteiro</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland; o programa usará X11, %1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11, %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>em execução</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>nenhum; o anel mostra o que havia embaixo ao abrir</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>nenhum próprio</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>procuradas no programa em execução, veja --explain</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1, segundo o perfil</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1, não pode ser gravado</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1, ainda não existe</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>desativados nos ajustes</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>ativados, %1 no total</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>%1 antes de mostrar uma janela principal com menus</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>não carregou o plugin em %1 segundos</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>não mostrou uma janela principal com menus em %1 segundos; talvez um diálogo esteja esperando</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>foi encerrado pelo sinal %1</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>terminou com o status %1</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: o arquivo não é executável</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: é uma pasta, não um programa</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: os gestos precisam de um programa feito com Qt Widgets, e este não é</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>o plugin libmousegestures não está instalado</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 usa Qt %2, mas o plugin libmousegestures-qt%2.so não está instalado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>“%1” aparece duas vezes</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>não é uma chave desse tipo de arquivo</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>está faltando</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>não é um objeto</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>não é um texto</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>contém um caractere de controle</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>tem “%1”, que já está em outra direção</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>linha %1: níveis demais para atribuições</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>linha 1: não é um objeto</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>não é %1</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>não é “%1”</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>não é nem true nem false</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>não indica nenhum botão</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>não é nem 4 nem 8</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>ainda não se conhece nenhum comando de %1; inicie-o uma vez com “mouse-gestures %1”</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 nunca mostrou um comando “%2”; mouse-gestures --list-commands %1 diz quais existem</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>vários comandos se chamam “%1”: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 gestos (em uso)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 gestos</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: este arquivo não existe</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: não é um arquivo</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: é longo demais para atribuições</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>isto foi alterado em outro lugar, então fica como está</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>gestos no %1: ativados</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>gestos no %1: desativados</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>iniciados com: %1 (padrão)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>iniciados com: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>o identificador de um comando não tem caracteres de controle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>“%1” não é uma das %2 direções: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 ainda não rodou com gestos; se não tiver o comando “%2”, a direção ficará vazia</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>os gestos ainda são iniciados com: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1, então nada foi importado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>“%1” não indica um gatilho, como right, middle ou ctrl+right; “default” é o usual do programa</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>o botão esquerdo sozinho é para desenhar, acrescente uma tecla, como ctrl+left</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>Gestos do mouse no %1</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>Segure %1 e arraste. Siga até um comando, ou solte para não fazer nada.</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>o botão esquerdo</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>o botão do meio</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>o botão direito</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>o botão Voltar</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>o botão Avançar</translation>
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
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>para cima</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>para cima à esquerda</translation>
    </message>
    <message>
        <source>left</source>
        <translation>esquerda</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>para baixo à esquerda</translation>
    </message>
    <message>
        <source>down</source>
        <translation>para baixo</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>para baixo à direita</translation>
    </message>
    <message>
        <source>right</source>
        <translation>direita</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>para cima à direita</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>No momento estão desativados.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direção</translation>
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
        <translation>nada</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: uma folha é um PDF, então o arquivo termina em .pdf</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 não está instalado</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>não foi possível desenhar a folha: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>dar a uma tarefa, como SketcherWorkbench do FreeCAD, um anel próprio, ou de novo o comum</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>iniciá-lo sem gestos se não forem possíveis</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>o perfil deste programa não conhece tarefas</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>não existe a tarefa “%1”; são conhecidas %2</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>atribuiç.</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>, segundo %1</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 segundo %2</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1, conforme os desenhos</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1; ctrl+right se o OpenGL pinta o desenho</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 não tem anel próprio, veja mouse-gestures --ring</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>anel de %1</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>um anel é “own” ou “shared”, não “%1”</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 em nenhum arquivo</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>ligar os gestos de novo, depois de uma falha ou se estiverem desligados nas definições</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>desligados desde que %1 falhou no código deles; para os ligar: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>colocar um comando em uma direção. COMMAND é o identificador, o texto ou “none”. DIRECTION é up, left, down ou right; com oito gestos também up-left, down-left, down-right ou up-right</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>Com --ring TASK no fim, --bind, --export, --import, --print ou --reset trata apenas do anel dessa tarefa.</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>não cita nenhuma tarefa</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>o perfil %1 não é usado: o nome dele deve ser %2</translation>
    </message>
</context>
</TS>
