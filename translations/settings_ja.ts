<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>settings::Advice</name>
    <message>
        <source>%1 is no longer installed.</source>
        <translation>%1 はもうインストールされていません。</translation>
    </message>
    <message>
        <source>Its commands and directions are kept. Install it again to use them.</source>
        <translation>コマンドと方向は残っています。使うには再びインストールしてください。</translation>
    </message>
    <message>
        <source>%1 is not made with Qt Widgets, so gestures cannot work in it.</source>
        <translation>%1 は Qt Widgets で作られていないため、ジェスチャーは使えません。</translation>
    </message>
    <message>
        <source>The part of Mouse Gestures that %1 needs is not installed.</source>
        <translation>%1 に必要なマウスジェスチャーの部分がインストールされていません。</translation>
    </message>
    <message>
        <source>Install the package gesturewidget-qt6.</source>
        <translation>パッケージ gesturewidget-qt6 をインストールしてください。</translation>
    </message>
    <message>
        <source>Install the package gesturewidget.</source>
        <translation>パッケージ gesturewidget をインストールしてください。</translation>
    </message>
    <message>
        <source>This desktop runs without X11, so the ring may open away from the pointer.</source>
        <translation>このデスクトップには X11 がないため、リングがポインターから離れて開くことがあります。</translation>
    </message>
    <message>
        <source>Log in with X11, or install XWayland.</source>
        <translation>X11 でログインするか、XWayland をインストールしてください。</translation>
    </message>
    <message>
        <source>The profile of %1 cannot be used: %2</source>
        <translation>%1 のプロファイルは使えません: %2</translation>
    </message>
    <message>
        <source>Mend or remove that file.</source>
        <translation>そのファイルを直すか削除してください。</translation>
    </message>
    <message>
        <source>Changes cannot be kept: %1</source>
        <translation>変更を保存できません: %1</translation>
    </message>
    <message>
        <source>Make that file and its folder yours, and writable.</source>
        <translation>そのファイルとフォルダーを自分の所有にし、書き込めるようにしてください。</translation>
    </message>
    <message>
        <source>Gestures are switched off in the settings of %1.</source>
        <translation>%1 の設定でジェスチャーがオフになっています。</translation>
    </message>
    <message>
        <source>%1 crashed in the code of Mouse Gestures, so gestures stay off in it.</source>
        <translation>%1 が Mouse Gestures のコードでクラッシュしたため、ジェスチャーはオフのままです。</translation>
    </message>
    <message>
        <source>You can switch them on and try again.</source>
        <translation>オンにしてもう一度試すことができます。</translation>
    </message>
</context>
<context>
    <name>settings::BindingsEditor</name>
    <message>
        <source>The number of directions was changed elsewhere meanwhile.</source>
        <translation>方向の数がほかの場所で変更されました。</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>空にする: %1</translation>
    </message>
    <message>
        <source>Put &quot;%1&quot; %2</source>
        <translation>「%1」: %2</translation>
    </message>
    <message>
        <source>Exchange %1 and %2</source>
        <translation>%1 と %2 を入れ替える</translation>
    </message>
    <message>
        <source>Four Directions</source>
        <translation>4 方向</translation>
    </message>
    <message>
        <source>Eight Directions</source>
        <translation>8 方向</translation>
    </message>
    <message>
        <source>Switch Gestures On</source>
        <translation>ジェスチャーをオンにする</translation>
    </message>
    <message>
        <source>Switch Gestures Off</source>
        <translation>ジェスチャーをオフにする</translation>
    </message>
    <message>
        <source>The left button alone is for drawing. Hold Ctrl, Shift, Alt or Meta with it.</source>
        <translation>左ボタンだけでは描画に使われます。Ctrl、Shift、Alt、Meta のいずれかを押しながら使ってください。</translation>
    </message>
    <message>
        <source>Change What Starts a Gesture</source>
        <translation>ジェスチャーの始め方を変更</translation>
    </message>
    <message>
        <source>Reset to First Commands</source>
        <translation>最初のコマンドに戻す</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Give &quot;%1&quot; Its Own Ring</source>
        <translation>「%1」に専用のリングを割り当てる</translation>
    </message>
    <message>
        <source>Let &quot;%1&quot; Use the Shared Ring</source>
        <translation>「%1」に共通のリングを使う</translation>
    </message>
</context>
<context>
    <name>settings::CommandModel</name>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>First commands</source>
        <translation>最初のコマンド</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>settings::CommandPanel</name>
    <message>
        <source>No command has this in its name.</source>
        <translation>名前にこれを含むコマンドはありません。</translation>
    </message>
    <message>
        <source>Search commands</source>
        <translation>コマンドを検索</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Ctrl and an arrow key puts the chosen command into that direction; Ctrl with Home, Page Up, End or Page Down into the one between.</source>
        <translation>Ctrl と矢印キーで、選んだコマンドをその方向に置きます。Ctrl と Home、Page Up、End、Page Down では間の方向に置きます。</translation>
    </message>
    <message>
        <source>&amp;Put Into</source>
        <translation>配置(&amp;P)</translation>
    </message>
    <message>
        <source>%1 (now %2)</source>
        <comment>a direction and its command</comment>
        <translation>%1 (現在は %2)</translation>
    </message>
    <message>
        <source>Take Off the Ring</source>
        <translation>リングから外す</translation>
    </message>
</context>
<context>
    <name>settings::Exchange</name>
    <message>
        <source>Gestures (*.json)</source>
        <translation>ジェスチャー (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>%1 にエクスポートしました</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>%1 からインポートしました</translation>
    </message>
    <message>
        <source>Mouse gestures in %1</source>
        <translation>%1 のマウスジェスチャー</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>印刷しました</translation>
    </message>
    <message>
        <source>The printer did not take the sheet.</source>
        <translation>プリンターがシートを受け付けませんでした。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Bring the first commands of %1 back?</source>
        <translation>%1 の最初のコマンドに戻しますか?</translation>
    </message>
    <message>
        <source>All directions get the commands that they had before anybody chose any. What starts a gesture stays. Undo takes this back.</source>
        <translation>すべての方向が、だれも選ぶ前のコマンドに戻ります。ジェスチャーの始め方は変わりません。元に戻すで取り消せます。</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>settings::ImportPreview</name>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>変わるもの</translation>
    </message>
    <message>
        <source>What</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>%1 has what %2 has already. Nothing would change.</source>
        <translation>%1 の内容は %2 と同じです。何も変わりません。</translation>
    </message>
    <message>
        <source>%1 would change the following in %2. The settings as they are now stay beside the new ones.</source>
        <translation>%1 は %2 の次の設定を変更します。今の設定は新しい設定の隣に残ります。</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (標準)</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Gestures</source>
        <translation>ジェスチャー</translation>
    </message>
    <message>
        <source>Directions in use</source>
        <translation>使用中の方向数</translation>
    </message>
    <message>
        <source>A gesture starts with</source>
        <translation>ジェスチャーの開始</translation>
    </message>
    <message>
        <source>%1 (of %2 directions)</source>
        <translation>%1 (%2 方向中)</translation>
    </message>
    <message>
        <source>%1: now %2, after %3</source>
        <translation>%1: 現在 %2、変更後 %3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Ring of %1</source>
        <translation>%1 のリング</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>専用</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>the file&apos;s</source>
        <translation>ファイルのもの</translation>
    </message>
</context>
<context>
    <name>settings::MessageBar</name>
    <message>
        <source>Close message</source>
        <translation>メッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>settings::ProgramModel</name>
    <message>
        <source>Starts with gestures</source>
        <translation>ジェスチャー付きで起動</translation>
    </message>
    <message>
        <source>Starts without gestures</source>
        <translation>ジェスチャーなしで起動</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPage</name>
    <message>
        <source>Switch Gestures &amp;On</source>
        <translation>ジェスチャーをオン(&amp;O)</translation>
    </message>
    <message>
        <source>Start with &amp;gestures</source>
        <translation>ジェスチャー付きで起動(&amp;G)</translation>
    </message>
    <message>
        <source>Start with gestures</source>
        <translation>ジェスチャー付きで起動</translation>
    </message>
    <message>
        <source>&amp;4 directions</source>
        <translation>&amp;4 方向</translation>
    </message>
    <message>
        <source>&amp;8 directions</source>
        <translation>&amp;8 方向</translation>
    </message>
    <message>
        <source>Drag a command from the list into a direction. Drag it on to another direction to exchange the two, or off the ring to take it away.</source>
        <translation>リストからコマンドを方向にドラッグします。別の方向にドラッグすると入れ替わり、リングの外にドラッグすると外れます。</translation>
    </message>
    <message>
        <source>Gestures work. %1 starts with them from the desktop&apos;s menus.</source>
        <translation>ジェスチャーが使えます。%1 はデスクトップのメニューからジェスチャー付きで起動します。</translation>
    </message>
    <message>
        <source>Gestures would work. Switch them on here, then start %1 from the desktop&apos;s menus.</source>
        <translation>ジェスチャーが使えます。ここでオンにして、デスクトップのメニューから %1 を起動してください。</translation>
    </message>
    <message>
        <source>These are the commands that nearly every program has. All others of %1 appear here when it has run with gestures once.</source>
        <translation>ほとんどのプログラムにあるコマンドです。%1 をジェスチャー付きで一度実行すると、ほかのコマンドもここに表示されます。</translation>
    </message>
    <message>
        <source>%1: hold, drag, and move on towards a command</source>
        <translation>%1: 押したままドラッグし、コマンドの方向へ進む</translation>
    </message>
    <message>
        <source>Ring of a task</source>
        <translation>作業のリング</translation>
    </message>
    <message>
        <source>&amp;Ring:</source>
        <translation>リング(&amp;R):</translation>
    </message>
    <message>
        <source>For all tasks</source>
        <translation>すべての作業</translation>
    </message>
    <message>
        <source>&amp;Own Rings</source>
        <translation>専用リング(&amp;O)</translation>
    </message>
    <message>
        <source>Choose the tasks that have rings of their own</source>
        <translation>専用のリングを持つ作業を選びます</translation>
    </message>
</context>
<context>
    <name>settings::ProgramPanel</name>
    <message>
        <source>Search programs</source>
        <translation>プログラムを検索</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Space switches a program&apos;s gestures on or off.</source>
        <translation>スペースキーでプログラムのジェスチャーをオンまたはオフにします。</translation>
    </message>
    <message>
        <source>Looking for programs</source>
        <translation>プログラムを探しています</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>プログラムを探しています...</translation>
    </message>
    <message>
        <source>The desktop&apos;s menus show no program in which gestures can work. Gestures need a program made with Qt Widgets.</source>
        <translation>デスクトップのメニューに、ジェスチャーが使えるプログラムがありません。Qt Widgets で作られたプログラムが必要です。</translation>
    </message>
    <message>
        <source>No program has this in its name.</source>
        <translation>名前にこれを含むプログラムはありません。</translation>
    </message>
</context>
<context>
    <name>settings::RingView</name>
    <message>
        <source>Ring of directions</source>
        <translation>方向のリング</translation>
    </message>
    <message>
        <source>%1: nothing</source>
        <translation>%1: なし</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Picked up. Space at another direction exchanges the two.</source>
        <translation>持ち上げました。別の方向でスペースキーを押すと入れ替わります。</translation>
    </message>
    <message>
        <source>Enter puts the chosen command here, Delete empties it, Space picks it up.</source>
        <translation>Enter で選んだコマンドをここに置き、Delete で空にし、スペースキーで持ち上げます。</translation>
    </message>
</context>
<context>
    <name>settings::SettingsWindow</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>マウスジェスチャー</translation>
    </message>
    <message>
        <source>Looking for programs...</source>
        <translation>プログラムを探しています...</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>メインツールバー</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Start the Program</source>
        <translation>プログラムを起動(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>&amp;Find a Command</source>
        <translation>コマンドを検索(&amp;F)</translation>
    </message>
    <message>
        <source>Reset to &amp;First Commands...</source>
        <translation>最初のコマンドに戻す(&amp;F)...</translation>
    </message>
    <message>
        <source>Reset...</source>
        <translation>リセット...</translation>
    </message>
    <message>
        <source>No program</source>
        <translation>プログラムなし</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>%1 を起動できませんでした。</translation>
    </message>
</context>
<context>
    <name>settings::Trigger</name>
    <message>
        <source>Left button</source>
        <translation>左ボタン</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>中ボタン</translation>
    </message>
    <message>
        <source>Back button</source>
        <translation>戻るボタン</translation>
    </message>
    <message>
        <source>Forward button</source>
        <translation>進むボタン</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>右ボタン</translation>
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
        <translation>ジェスチャーの始め方を記録</translation>
    </message>
    <message>
        <source>Press a mouse button here, with the keys to hold. With the keyboard, choose from the list.</source>
        <translation>ここで、押し続けるキーと一緒にマウスボタンを押します。キーボードではリストから選んでください。</translation>
    </message>
    <message>
        <source>Press a mouse button here, with Ctrl, Shift, Alt or Meta held if you like</source>
        <translation>ここでマウスボタンを押します。必要なら Ctrl、Shift、Alt、Meta を押しながら</translation>
    </message>
    <message>
        <source>or press it here</source>
        <translation>またはここで押す</translation>
    </message>
</context>
<context>
    <name>settings::TriggerPanel</name>
    <message>
        <source>A gesture &amp;starts with:</source>
        <translation>ジェスチャーの開始(&amp;S):</translation>
    </message>
    <message>
        <source>What starts a gesture</source>
        <translation>ジェスチャーの始め方</translation>
    </message>
    <message>
        <source>%1 (usual)</source>
        <translation>%1 (標準)</translation>
    </message>
    <message>
        <source>%1 (%2 uses it)</source>
        <translation>%1 (%2 が使用)</translation>
    </message>
    <message>
        <source>%1 uses this drag itself. While it starts a gesture, %1 no longer gets it.</source>
        <translation>このドラッグは %1 自身が使います。ジェスチャーの開始に使う間、%1 には届きません。</translation>
    </message>
    <message>
        <source>%1 is running. It takes this over at its next start.</source>
        <translation>%1 は実行中です。次回の起動時に反映されます。</translation>
    </message>
</context>
</TS>
