<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>launcher</name>
    <message>
        <source>show which command lies in which direction</source>
        <translation>どの方向にどのコマンドがあるかを表示</translation>
    </message>
    <message>
        <source>show the commands that the program has shown so far</source>
        <translation>これまでにプログラムが表示したコマンドを一覧</translation>
    </message>
    <message>
        <source>choose what starts a gesture: right, middle, ctrl+right, ...; &quot;default&quot; is the usual trigger</source>
        <translation>ジェスチャーの開始操作を選ぶ: right、middle、ctrl+right など。「default」は標準の操作</translation>
    </message>
    <message>
        <source>bring the first bindings back; the trigger stays</source>
        <translation>最初の割り当てに戻す。開始操作は変わらない</translation>
    </message>
    <message>
        <source>write all bindings as JSON</source>
        <translation>すべての割り当てを JSON で書き出す</translation>
    </message>
    <message>
        <source>take over such a file, all of it or nothing</source>
        <translation>そのファイルを読み込む。すべてか、まったく読み込まないか</translation>
    </message>
    <message>
        <source>draw the ring with its commands, to pin on the wall</source>
        <translation>壁に貼るためのリングとコマンドの図を描く</translation>
    </message>
    <message>
        <source>say whether gestures can work in the program</source>
        <translation>そのプログラムでジェスチャーが使えるかを調べる</translation>
    </message>
    <message>
        <source>start the program, say what in it is taken for what and why, print that as a profile, end the program</source>
        <translation>プログラムを起動し、何を何と見なしたかとその理由を示し、プロファイルとして出力して終了する</translation>
    </message>
    <message>
        <source>start it with gestures from the desktop&apos;s menus too</source>
        <translation>デスクトップのメニューからもジェスチャー付きで起動する</translation>
    </message>
    <message>
        <source>start it from the desktop&apos;s menus as before</source>
        <translation>デスクトップのメニューから元どおりに起動する</translation>
    </message>
    <message>
        <source>usage: mouse-gestures %1 %2</source>
        <translation>使い方: mouse-gestures %1 %2</translation>
    </message>
    <message>
        <source>unknown option %1, see mouse-gestures --help</source>
        <translation>不明なオプション %1。mouse-gestures --help を参照</translation>
    </message>
    <message>
        <source>no program given, see mouse-gestures --help</source>
        <translation>プログラムが指定されていません。mouse-gestures --help を参照</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>使い方:</translation>
    </message>
    <message>
        <source>Starts a drafting program with mouse gestures: hold the right button in the drawing, drag, and move on towards the command you want. &quot;Mouse Gestures...&quot; in the program&apos;s menus shows which command lies in which direction.</source>
        <translation>作図プログラムをマウスジェスチャー付きで起動します。図面で右ボタンを押したままドラッグし、目的のコマンドの方へ進めます。プログラムのメニューの「マウスジェスチャー...」で、どの方向にどのコマンドがあるかを表示します。</translation>
    </message>
    <message>
        <source>PROGRAM is any program made with Qt Widgets, 5 or 6. It is not changed. Without a program, a window opens in which a person can do all of this with the mouse.</source>
        <translation>PROGRAM は Qt Widgets 5 または 6 で作られたプログラムです。プログラム自体は変更しません。プログラムを指定しないと、これらをマウスで行えるウィンドウが開きます。</translation>
    </message>
    <message>
        <source>show this text</source>
        <translation>この説明を表示</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>the next word is the program, even if it starts with &quot;-&quot;</source>
        <translation>次の語は「-」で始まっていてもプログラム名</translation>
    </message>
    <message>
        <source>FILE may be &quot;-&quot; for standard output or standard input.</source>
        <translation>FILE に「-」を指定すると標準出力または標準入力になります。</translation>
    </message>
    <message>
        <source>Exit status of a started program: its own. 127: there is no such program. 126: it cannot be run with gestures. 125: mouse-gestures is not set up or not used correctly. An option exits with 1 when it could not be done; nothing is changed then.</source>
        <translation>起動したプログラムの終了ステータスはそのプログラムのものです。127: そのようなプログラムはない。126: ジェスチャー付きで実行できない。125: mouse-gestures の設定または使い方が正しくない。オプションを実行できなかった場合は 1 で終了し、何も変更しません。</translation>
    </message>
    <message>
        <source>standard input cannot be read</source>
        <translation>標準入力を読み込めません</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>gestures cannot work well in %1, see the lines with &quot;!&quot;</source>
        <translation>%1 ではジェスチャーが正しく働きません。「!」の行を参照してください</translation>
    </message>
    <message>
        <source>%1: there is no such program</source>
        <translation>%1: そのようなプログラムはありません</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>標準出力に書き込めません</translation>
    </message>
    <message>
        <source>warning: there is no X11 display; under Wayland the ring may open away from the pointer</source>
        <translation>警告: X11 の画面がありません。Wayland ではリングがポインターから離れて開くことがあります</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To change any of it, edit this profile and keep it as %1</source>
        <translation>変更するには、このプロファイルを編集して %1 として保存してください</translation>
    </message>
    <message>
        <source>%1 is your own and stays as it is</source>
        <translation>%1 は自分で作成したものなので変更しません</translation>
    </message>
    <message>
        <source>%1: the desktop has no entry that starts it</source>
        <translation>%1: これを起動する項目がデスクトップのメニューにありません</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 を読み込めません</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>starts with gestures: %1</source>
        <translation>ジェスチャー付きで起動します: %1</translation>
    </message>
    <message>
        <source>%1 cannot be removed</source>
        <translation>%1 を削除できません</translation>
    </message>
    <message>
        <source>starts as before: %1 is removed</source>
        <translation>元どおりに起動します: %1 を削除しました</translation>
    </message>
    <message>
        <source>%1: nothing was there to remove</source>
        <translation>%1: 削除するものはありませんでした</translation>
    </message>
    <message>
        <source>program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>display</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>compositor</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>views</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>gestures</source>
        <translation>ジェスチャー</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>開始操作</translation>
    </message>
    <message>
        <source>%1, not found</source>
        <translation>%1、見つかりません</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>not known before it runs: a script</source>
        <translation>実行するまで不明: スクリプトです</translation>
    </message>
    <message>
        <source>none; gestures need a program made with Qt Widgets</source>
        <translation>なし。ジェスチャーには Qt Widgets で作られたプログラムが必要です</translation>
    </message>
    <message>
        <source>not installed</source>
        <translation>インストールされていません</translation>
    </message>
    <message>
        <source>not installed for Qt %1</source>
        <translation>Qt %1 用はインストールされていません</translation>
    </message>
    <message>
        <source>Wayland without X11; the ring may open away from the pointer</source>
        <translation>X11 のない Wayland。リングがポインターから離れて開くことがあります</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Wayland; the program will use X11, %1</source>
        <translation>Wayland。プログラムは X11 を使います、%1</translation>
    </message>
    <message>
        <source>X11, %1</source>
        <translation>X11、%1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>none; the ring shows what was under it when it opened</source>
        <translation>なし。リングは開いたときに下にあったものを表示します</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>none of its own</source>
        <translation>専用のものはありません</translation>
    </message>
    <message>
        <source>looked for in the running program, see --explain</source>
        <translation>実行中のプログラムで探します。--explain を参照</translation>
    </message>
    <message>
        <source>%1, by the profile</source>
        <translation>%1、プロファイルによる</translation>
    </message>
    <message>
        <source>%1, cannot be written</source>
        <translation>%1、書き込めません</translation>
    </message>
    <message>
        <source>%1, not there yet</source>
        <translation>%1、まだありません</translation>
    </message>
    <message>
        <source>switched off in the settings</source>
        <translation>設定でオフになっています</translation>
    </message>
    <message>
        <source>on, %1 of them</source>
        <translation>オン、%1 方向</translation>
    </message>
    <message>
        <source>it %1 before it had shown a main window with menus</source>
        <translation>メニューのあるメインウィンドウを表示する前に、%1</translation>
    </message>
    <message>
        <source>it has not loaded the plug-in in %1 seconds</source>
        <translation>%1 秒以内にプラグインを読み込みませんでした</translation>
    </message>
    <message>
        <source>it has shown no main window with menus in %1 seconds; a dialog may be waiting</source>
        <translation>%1 秒以内にメニューのあるメインウィンドウを表示しませんでした。ダイアログが待っているかもしれません</translation>
    </message>
    <message>
        <source>was ended by signal %1</source>
        <translation>シグナル %1 で終了しました</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>終了ステータス %1 で終わりました</translation>
    </message>
    <message>
        <source>%1: the file may not be executed</source>
        <translation>%1: 実行が許可されていないファイルです</translation>
    </message>
    <message>
        <source>%1: this is a folder, not a program</source>
        <translation>%1: プログラムではなくフォルダーです</translation>
    </message>
    <message>
        <source>%1: gestures need a program made with Qt Widgets, which this one is not</source>
        <translation>%1: ジェスチャーには Qt Widgets で作られたプログラムが必要ですが、これは違います</translation>
    </message>
    <message>
        <source>the plug-in libmousegestures is not installed</source>
        <translation>プラグイン libmousegestures がインストールされていません</translation>
    </message>
    <message>
        <source>%1 uses Qt %2, for which the plug-in libmousegestures-qt%2.so is not installed</source>
        <translation>%1 は Qt %2 を使いますが、プラグイン libmousegestures-qt%2.so がインストールされていません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice</source>
        <translation>「%1」が二度あります</translation>
    </message>
    <message>
        <source>is not a key of such a file</source>
        <translation>はこのファイルのキーではありません</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>がありません</translation>
    </message>
    <message>
        <source>is not an object</source>
        <translation>はオブジェクトではありません</translation>
    </message>
    <message>
        <source>is not a string</source>
        <translation>は文字列ではありません</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>に制御文字があります</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, which another direction has</source>
        <translation>の「%1」は別の方向にもあります</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>line %1: this is nested too deeply for bindings</source>
        <translation>%1 行目: 割り当てとしては階層が深すぎます</translation>
    </message>
    <message>
        <source>line 1: it is not an object</source>
        <translation>1 行目: オブジェクトではありません</translation>
    </message>
    <message>
        <source>is not %1</source>
        <translation>は %1 ではありません</translation>
    </message>
    <message>
        <source>is not &quot;%1&quot;</source>
        <translation>は「%1」ではありません</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>は true でも false でもありません</translation>
    </message>
    <message>
        <source>names no button</source>
        <translation>はボタンの名前ではありません</translation>
    </message>
    <message>
        <source>is neither 4 nor 8</source>
        <translation>は 4 でも 8 でもありません</translation>
    </message>
    <message>
        <source>no command of %1 is known yet; start it once with &quot;mouse-gestures %1&quot;</source>
        <translation>%1 のコマンドはまだ分かりません。一度「mouse-gestures %1」で起動してください</translation>
    </message>
    <message>
        <source>%1 has never shown a command &quot;%2&quot;; mouse-gestures --list-commands %1 says which it has</source>
        <translation>%1 はコマンド「%2」を表示したことがありません。mouse-gestures --list-commands %1 で一覧を表示します</translation>
    </message>
    <message>
        <source>several commands are called &quot;%1&quot;: %2</source>
        <translation>「%1」という名前のコマンドが複数あります: %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>%1 gestures (in use)</source>
        <translation>%1 方向 (使用中)</translation>
    </message>
    <message>
        <source>%1 gestures</source>
        <translation>%1 方向</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: そのようなファイルはありません</translation>
    </message>
    <message>
        <source>%1: this is not a file</source>
        <translation>%1: ファイルではありません</translation>
    </message>
    <message>
        <source>%1: this is too long for bindings</source>
        <translation>%1: 割り当てとしては長すぎます</translation>
    </message>
    <message>
        <source>this was changed elsewhere meanwhile, so it stays</source>
        <translation>その間に別の場所で変更されたため、そのままにします</translation>
    </message>
    <message>
        <source>gestures in %1: on</source>
        <translation>%1 のジェスチャー: オン</translation>
    </message>
    <message>
        <source>gestures in %1: off</source>
        <translation>%1 のジェスチャー: オフ</translation>
    </message>
    <message>
        <source>started with: %1 (default)</source>
        <translation>開始操作: %1 (既定)</translation>
    </message>
    <message>
        <source>started with: %1</source>
        <translation>開始操作: %1</translation>
    </message>
    <message>
        <source>a command&apos;s identifier has no control characters</source>
        <translation>コマンドの識別子に制御文字は使えません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the %2 directions: %3</source>
        <translation>「%1」は %2 方向のどれでもありません: %3</translation>
    </message>
    <message>
        <source>%1 has not run with gestures yet; if it has no command &quot;%2&quot;, the direction becomes empty</source>
        <translation>%1 はまだジェスチャー付きで実行されていません。コマンド「%2」がなければ、その方向は空になります</translation>
    </message>
    <message>
        <source>gestures are still started with: %1</source>
        <translation>開始操作はそのまま: %1</translation>
    </message>
    <message>
        <source>%1, so nothing is imported</source>
        <translation>%1。何も取り込みませんでした</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger, such as right, middle or ctrl+right; &quot;default&quot; is the program&apos;s usual one</source>
        <translation>「%1」は right、middle、ctrl+right のような開始操作ではありません。「default」はそのプログラムの標準です</translation>
    </message>
    <message>
        <source>the left button alone is for drawing, add a key to it, such as ctrl+left</source>
        <translation>左ボタンだけは作図用です。ctrl+left のようにキーを加えてください</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>%1 のマウスジェスチャー</translation>
    </message>
    <message>
        <source>Hold %1 and drag. Move on towards a command, or let go to do nothing.</source>
        <translation>%1を押したままドラッグします。コマンドの方へ進めると実行し、離すと何もしません。</translation>
    </message>
    <message>
        <source>the left button</source>
        <translation>左ボタン</translation>
    </message>
    <message>
        <source>the middle button</source>
        <translation>中ボタン</translation>
    </message>
    <message>
        <source>the right button</source>
        <translation>右ボタン</translation>
    </message>
    <message>
        <source>the back button</source>
        <translation>戻るボタン</translation>
    </message>
    <message>
        <source>the forward button</source>
        <translation>進むボタン</translation>
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
        <translation>%1 と%2</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>up left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>down left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>down right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>up right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>They are switched off at the moment.</source>
        <translation>現在はオフになっています。</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1: a sheet is a PDF, so its file ends in .pdf</source>
        <translation>%1: シートは PDF なので、ファイル名は .pdf で終わります</translation>
    </message>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 がインストールされていません</translation>
    </message>
    <message>
        <source>the sheet could not be drawn: %1</source>
        <translation>シートを描けませんでした: %1</translation>
    </message>
    <message>
        <source>give a task, such as FreeCAD&apos;s SketcherWorkbench, a ring of its own, or the shared one again</source>
        <translation>FreeCAD の SketcherWorkbench などの作業に専用のリングを与える、または共有のリングに戻す</translation>
    </message>
    <message>
        <source>start it without gestures if it cannot have them</source>
        <translation>ジェスチャーを使えない場合はなしで起動する</translation>
    </message>
    <message>
        <source>the profile of this program knows no tasks</source>
        <translation>このプログラムのプロファイルには作業がありません</translation>
    </message>
    <message>
        <source>there is no task &quot;%1&quot;; known ones are %2</source>
        <translation>作業「%1」はありません。あるのは %2 です</translation>
    </message>
    <message>
        <source>bindings</source>
        <translation>割り当て</translation>
    </message>
    <message>
        <source>, by %1</source>
        <translation>、%1 による</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 は %2 による</translation>
    </message>
    <message>
        <source>%1, as suits the drawings</source>
        <translation>%1、図面に合わせて</translation>
    </message>
    <message>
        <source>%1; ctrl+right if OpenGL paints the drawing</source>
        <translation>%1。OpenGL が図面を描く場合は ctrl+right</translation>
    </message>
    <message>
        <source>%1 has no ring of its own, see mouse-gestures --ring</source>
        <translation>%1 には専用のリングがありません。mouse-gestures --ring を参照</translation>
    </message>
    <message>
        <source>ring of %1</source>
        <translation>%1 のリング</translation>
    </message>
    <message>
        <source>a ring is &quot;own&quot; or &quot;shared&quot;, not &quot;%1&quot;</source>
        <translation>リングは「own」か「shared」です。「%1」ではありません</translation>
    </message>
    <message>
        <source>%1 in no file</source>
        <translation>%1 はどのファイルにもなし</translation>
    </message>
    <message>
        <source>switch gestures on again, after a crash or when they are switched off in the settings</source>
        <translation>クラッシュの後、または設定でオフのときに、ジェスチャーを再びオンにする</translation>
    </message>
    <message>
        <source>off since %1 crashed in their code; to switch them on: mouse-gestures --switch-on %1</source>
        <translation>%1 がジェスチャーのコードでクラッシュしたためオフ。オンにするには: mouse-gestures --switch-on %1</translation>
    </message>
    <message>
        <source>put a command into a direction. COMMAND is its identifier or its caption, or &quot;none&quot;. DIRECTION is up, left, down or right; with eight gestures also up-left, down-left, down-right or up-right</source>
        <translation>コマンドを方向に割り当てる。COMMAND は識別子、名前、または「none」。DIRECTION は up、left、down、right、8 方向では up-left、down-left、down-right、up-right も使用可</translation>
    </message>
    <message>
        <source>With --ring TASK at its end, --bind, --export, --import, --print or --reset is about the ring of that task alone.</source>
        <translation>末尾に --ring TASK を付けると、--bind、--export、--import、--print、--reset はその作業のリングだけを対象とします。</translation>
    </message>
    <message>
        <source>names no task</source>
        <translation>は作業の名前ではありません</translation>
    </message>
    <message>
        <source>the profile %1 is not used: its name must be %2</source>
        <translation>プロファイル %1 は使われません: 名前は %2 でなければなりません</translation>
    </message>
</context>
</TS>
