<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>host</name>
    <message>
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>プログラムにコマンド「%1」がないため、その方向は空です。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>コマンド「%1」はありません。</translation>
    </message>
    <message>
        <source>%1: cannot be used at the moment.</source>
        <translation>%1: 今は使えません。</translation>
    </message>
    <message>
        <source>%1: not available at the moment.</source>
        <translation>%1: 今は利用できません。</translation>
    </message>
    <message>
        <source>The toolbar &quot;%1&quot; does not have it now.</source>
        <translation>ツールバー「%1」に今はありません。</translation>
    </message>
    <message>
        <source>It belongs to the toolbar &quot;%1&quot;, which is not there now.</source>
        <translation>ツールバー「%1」のコマンドですが、そのツールバーは今ありません。</translation>
    </message>
    <message>
        <source>The menu &quot;%1&quot; does not have it now.</source>
        <translation>メニュー「%1」に今はありません。</translation>
    </message>
    <message>
        <source>It belongs to the menu &quot;%1&quot;, which is not there now.</source>
        <translation>メニュー「%1」のコマンドですが、そのメニューは今ありません。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>オフセット</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>トリム</translation>
    </message>
    <message>
        <source>Zoom to Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The guide to mouse gestures cannot be opened.</source>
        <translation>マウスジェスチャーのガイドを開けません。</translation>
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
        <translation>左ボタン</translation>
    </message>
    <message>
        <source>middle button</source>
        <translation>中ボタン</translation>
    </message>
    <message>
        <source>right button</source>
        <translation>右ボタン</translation>
    </message>
    <message>
        <source>back button</source>
        <translation>戻るボタン</translation>
    </message>
    <message>
        <source>forward button</source>
        <translation>進むボタン</translation>
    </message>
    <message>
        <source>Mouse gestures start with: %1. To change it: &quot;Mouse Gestures&quot; in the desktop&apos;s menu, or mouse-gestures --trigger %2</source>
        <translation>マウスジェスチャーは %1 で始まります。変更: デスクトップのメニューの「マウスジェスチャー」、または mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>これはすべての作業で使うリングです。</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>これは %1 のリングです。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>shortcut &quot;%1&quot;</source>
        <translation>ショートカット「%1」</translation>
    </message>
    <message>
        <source>icon &quot;%1&quot;</source>
        <translation>アイコン「%1」</translation>
    </message>
    <message>
        <source>object name &quot;%1&quot;</source>
        <translation>オブジェクト名「%1」</translation>
    </message>
    <message>
        <source>caption &quot;%1&quot;</source>
        <translation>見出し「%1」</translation>
    </message>
    <message>
        <source>it is a text editor</source>
        <translation>テキストエディターです</translation>
    </message>
    <message>
        <source>it is an item view</source>
        <translation>リストか表です</translation>
    </message>
    <message>
        <source>it is a frame for others</source>
        <translation>ほかの部品の枠です</translation>
    </message>
    <message>
        <source>it is a control</source>
        <translation>操作部品です</translation>
    </message>
    <message>
        <source>it shows web pages</source>
        <translation>ウェブページを表示します</translation>
    </message>
    <message>
        <source>it is a start page by its name</source>
        <translation>名前からして開始ページです</translation>
    </message>
    <message>
        <source>it is the viewport of %1</source>
        <translation>%1 の表示部分です</translation>
    </message>
    <message>
        <source>it is inside %1</source>
        <translation>%1 の中にあります</translation>
    </message>
    <message>
        <source>it is not visible</source>
        <translation>表示されていません</translation>
    </message>
    <message>
        <source>it is too small</source>
        <translation>小さすぎます</translation>
    </message>
    <message>
        <source>it is a plain %1, which paints nothing</source>
        <translation>何も描かないただの %1 です</translation>
    </message>
    <message>
        <source>it is filled by another, %1</source>
        <translation>別の %1 で埋まっています</translation>
    </message>
    <message>
        <source>it is a text editor by the way it takes text</source>
        <translation>エディターのように文字を受け取ります</translation>
    </message>
    <message>
        <source>it is a table by its header</source>
        <translation>見出し行からして表です</translation>
    </message>
    <message>
        <source>it is a page of controls</source>
        <translation>操作部品のページです</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area</source>
        <translation>領域の %1 % を占めるスクロール領域の内容です</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area</source>
        <translation>自分で描画し、領域の %1 % を占めます</translation>
    </message>
    <message>
        <source>it is the content of a scroll area that fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>領域の %1 % を占めるスクロール領域の内容で、ほかに図面を表示できるものがありません</translation>
    </message>
    <message>
        <source>it paints itself and fills %1 % of the area, where nothing else could show a drawing</source>
        <translation>自分で描画し、領域の %1 % を占め、ほかに図面を表示できるものがありません</translation>
    </message>
    <message>
        <source>it fills %1 % of the area only</source>
        <translation>領域の %1 % しか占めません</translation>
    </message>
    <message>
        <source>it is not in the middle of a main window</source>
        <translation>メインウィンドウの中央にありません</translation>
    </message>
    <message>
        <source>it is part of a form that is being designed</source>
        <translation>設計中のフォームの一部です</translation>
    </message>
    <message>
        <source>it is a graphics view</source>
        <translation>グラフィックビューです</translation>
    </message>
    <message>
        <source>it is a surface of the graphics library or of a window</source>
        <translation>グラフィックライブラリかウィンドウの描画面です</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>chosen at an earlier start</source>
        <translation>以前の起動時に選ばれました</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the profile names its class %1</source>
        <translation>プロファイルがクラス %1 を挙げています</translation>
    </message>
    <message>
        <source>window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>view</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>none, perhaps before a drawing is open</source>
        <translation>なし。図面を開く前かもしれません</translation>
    </message>
    <message>
        <source>left to be guessed, a class of Qt&apos;s own says too little</source>
        <translation>推測に任せます。Qt 自身のクラスでは手がかりが足りません</translation>
    </message>
    <message>
        <source>view classes</source>
        <translation>ビューのクラス</translation>
    </message>
    <message>
        <source>no view</source>
        <translation>ビューではない</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>開始操作</translation>
    </message>
    <message>
        <source>one is made, since no menu of the menu bar is called Tools</source>
        <translation>メニューバーに「ツール」がないため作成します</translation>
    </message>
    <message>
        <source>the profile names it</source>
        <translation>プロファイルにあります</translation>
    </message>
    <message>
        <source>its object name says so</source>
        <translation>オブジェクト名によります</translation>
    </message>
    <message>
        <source>its caption &quot;%1&quot; says so</source>
        <translation>見出し「%1」によります</translation>
    </message>
    <message>
        <source>Tools menu</source>
        <translation>ツールメニュー</translation>
    </message>
    <message>
        <source>the profile names %1, which is not there at the moment</source>
        <translation>プロファイルは %1 を挙げていますが、今はありません</translation>
    </message>
    <message>
        <source>the action itself is called so</source>
        <translation>アクション自体がこの名前です</translation>
    </message>
    <message>
        <source>no action has a matching shortcut, icon, object name or caption</source>
        <translation>ショートカット、アイコン、オブジェクト名、見出しの合うアクションがありません</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 cannot be written, new commands are forgotten</source>
        <translation>%1 に書き込めないため、新しいコマンドは記憶されません</translation>
    </message>
    <message>
        <source>%1 is damaged, %2 is used</source>
        <translation>%1 は壊れているため、%2 を使います</translation>
    </message>
    <message>
        <source>%1 is damaged, and there is no good copy of it</source>
        <translation>%1 は壊れており、正しいコピーがありません</translation>
    </message>
    <message>
        <source>%1 is too large, its commands are not offered</source>
        <translation>%1 は大きすぎるため、そのコマンドは使えません</translation>
    </message>
    <message>
        <source>%1 cannot be read, its commands are not offered</source>
        <translation>%1 を読めないため、そのコマンドは使えません</translation>
    </message>
    <message>
        <source>%1 is of a later version (%2), its commands are not offered</source>
        <translation>%1 は新しい版（%2）のものなので、そのコマンドは使えません</translation>
    </message>
    <message>
        <source>%1 is not a list of commands and is left alone</source>
        <translation>%1 はコマンドの一覧ではないため、変更しません</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%2 バイト目: %1</translation>
    </message>
    <message>
        <source>it is not an object</source>
        <translation>オブジェクトではありません</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;</source>
        <translation>不明なキー「%1」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a string</source>
        <translation>「%1」は文字列ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a list</source>
        <translation>「%1」はリストではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds something that is not a name</source>
        <translation>「%1」に名前でないものがあります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an object</source>
        <translation>「%1」はオブジェクトではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>「%1」は true でも false でもありません</translation>
    </message>
    <message>
        <source>&quot;trigger.button&quot; names no mouse button: &quot;%1&quot;</source>
        <translation>「trigger.button」はマウスボタンの名前ではありません:「%1」</translation>
    </message>
    <message>
        <source>&quot;trigger.modifiers&quot; names no key: &quot;%1&quot;</source>
        <translation>「trigger.modifiers」はキーの名前ではありません:「%1」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no trigger: &quot;%2&quot;</source>
        <translation>「%1」は開始操作ではありません:「%2」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs a file and what is around the value</source>
        <translation>「%1」にはファイルと値の前後の文字列が必要です</translation>
    </message>
    <message>
        <source>&quot;%1.triggers.%2&quot; names no trigger</source>
        <translation>「%1.triggers.%2」は開始操作ではありません</translation>
    </message>
    <message>
        <source>&quot;wellKnownCommands.%1&quot; names no action</source>
        <translation>「wellKnownCommands.%1」はアクションの名前ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no direction</source>
        <translation>「%1」は方向ではありません</translation>
    </message>
    <message>
        <source>&quot;tasks&quot; names two ways to know the task</source>
        <translation>「tasks」に作業を知る方法が二つあります</translation>
    </message>
    <message>
        <source>&quot;tasks.firstBindings.%1&quot; is not an object</source>
        <translation>「tasks.firstBindings.%1」はオブジェクトではありません</translation>
    </message>
    <message>
        <source>&quot;version&quot; is missing or not a number</source>
        <translation>「version」がないか、数値ではありません</translation>
    </message>
    <message>
        <source>version %1 is not known</source>
        <translation>版 %1 は不明です</translation>
    </message>
    <message>
        <source>&quot;program&quot; is &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>「program」は「%2」ではなく「%1」です</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>長すぎます</translation>
    </message>
    <message>
        <source>the profile %1 is not used: %2</source>
        <translation>プロファイル %1 は使われません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read, its bindings are not used</source>
        <translation>%1 を読めないため、その割り当ては使われません</translation>
    </message>
    <message>
        <source>%1 was damaged and is restored from %2</source>
        <translation>%1 は壊れていたため、%2 から復元しました</translation>
    </message>
    <message>
        <source>%1 is not a file, so no copy of the settings is kept</source>
        <translation>%1 はファイルではないため、設定のコピーは残りません</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>%1 cannot be written, since another program holds %1.lock</source>
        <translation>別のプログラムが %1.lock を保持しているため、%1 に書き込めません</translation>
    </message>
    <message>
        <source>it has no widgets</source>
        <translation>ウィジェットがありません</translation>
    </message>
    <message>
        <source>it brings gestures of its own</source>
        <translation>独自のジェスチャーを持っています</translation>
    </message>
    <message>
        <source>%1 cannot be written, changes last until the program ends</source>
        <translation>%1 に書き込めないため、変更はプログラムの終了までです</translation>
    </message>
    <message>
        <source>a host that was stopped cannot start again</source>
        <translation>停止したホストは再開できません</translation>
    </message>
    <message>
        <source>this program has a host already</source>
        <translation>このプログラムには既にホストがあります</translation>
    </message>
    <message>
        <source>there is no main window to host</source>
        <translation>対象のメインウィンドウがありません</translation>
    </message>
    <message>
        <source>it is not a library</source>
        <translation>ライブラリではありません</translation>
    </message>
    <message>
        <source>it is cut short</source>
        <translation>途中で切れています</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>不明な例外</translation>
    </message>
    <message>
        <source>there is no module &apos;%1&apos;</source>
        <translation>モジュール「%1」がありません</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; cannot be loaded: %2</source>
        <translation>モジュール「%1」を読み込めません: %2</translation>
    </message>
    <message>
        <source>the module cannot be loaded: %1</source>
        <translation>モジュールを読み込めません: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a module: it lacks %2</source>
        <translation>「%1」はモジュールではありません: %2 がありません</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; failed to name its version: %2</source>
        <translation>モジュール「%1」は版を示せませんでした: %2</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; is for version %2 of the platform, this is %3</source>
        <translation>モジュール「%1」はプラットフォームの版 %2 用ですが、これは %3 です</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not be created: %2</source>
        <translation>モジュール「%1」を作成できませんでした: %2</translation>
    </message>
    <message>
        <source>it gave no object</source>
        <translation>オブジェクトが返りませんでした</translation>
    </message>
    <message>
        <source>the module &apos;%1&apos; could not start: %2</source>
        <translation>モジュール「%1」を開始できませんでした: %2</translation>
    </message>
    <message>
        <source>the profile says so</source>
        <translation>プロファイルによります</translation>
    </message>
    <message>
        <source>nothing says otherwise</source>
        <translation>ほかの指定がありません</translation>
    </message>
    <message>
        <source>the settings say so</source>
        <translation>設定によります</translation>
    </message>
    <message>
        <source>the settings name no trigger: &quot;%1&quot;</source>
        <translation>設定の開始操作が正しくありません:「%1」</translation>
    </message>
    <message>
        <source>OpenGL paints the drawing, and such programs need the right button</source>
        <translation>OpenGL が図面を描いており、そのようなプログラムは右ボタンを使います</translation>
    </message>
    <message>
        <source>the program itself is set to %1</source>
        <translation>プログラム自体が %1 に設定されています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty</source>
        <translation>「%1」が空です</translation>
    </message>
    <message>
        <source>gestures are off, since %1 crashed in their code; to switch them on: %2</source>
        <translation>%1 がジェスチャーのコードでクラッシュしたため、ジェスチャーはオフです。オンにするには: %2</translation>
    </message>
    <message>
        <source>remove %1 from %2</source>
        <translation>%2 から %1 を削除</translation>
    </message>
</context>
</TS>
