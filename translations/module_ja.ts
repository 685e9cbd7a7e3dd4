<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>MgCommandDSModel</name>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>方向</translation>
    </message>
</context>
<context>
    <name>MgCommandModelDelegate</name>
    <message>
        <source>Gesture direction</source>
        <translation>ジェスチャーの方向</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManager</name>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>All Commands</source>
        <translation>すべてのコマンド</translation>
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
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Click to sort, or press Ctrl+1, Ctrl+2 or Ctrl+3</source>
        <translation>クリックするか Ctrl+1、Ctrl+2、Ctrl+3 を押すと並べ替えます</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Taken from: %1</source>
        <translation>%1 から外しました</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>This will delete all of the user defined mouse gestures and reset to the factory defaults. Do you want to continue?</source>
        <translation>ユーザーが設定したマウスジェスチャーをすべて削除し、初期設定に戻します。続行しますか?</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogManagerClass</name>
    <message>
        <source>Mouse Gestures</source>
        <translation>マウスジェスチャー</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>カテゴリ:</translation>
    </message>
    <message>
        <source>Mouse Gesture assigned commands</source>
        <translation>ジェスチャーを割り当てたコマンド</translation>
    </message>
    <message>
        <source>Search for:</source>
        <translation>検索:</translation>
    </message>
    <message>
        <source>Enable mouse gestures</source>
        <translation>マウスジェスチャーを有効にする</translation>
    </message>
    <message>
        <source>4 Gestures</source>
        <translation>4 方向</translation>
    </message>
    <message>
        <source>8 Gestures</source>
        <translation>8 方向</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>初期設定に戻す</translation>
    </message>
    <message>
        <source>Print List</source>
        <translation>一覧を印刷</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Search for commands</source>
        <translation>コマンドを検索</translation>
    </message>
    <message>
        <source>Commands and their gestures</source>
        <translation>コマンドとジェスチャー</translation>
    </message>
</context>
<context>
    <name>MgDonutDialogPVStyleImpl</name>
    <message>
        <source>Mouse gesture</source>
        <translation>マウスジェスチャー</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a command, what it does</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Mouse Gestures...</source>
        <translation>マウスジェスチャー...</translation>
    </message>
    <message>
        <source>Customizes mouse gestures:</source>
        <translation>マウスジェスチャーを設定します:</translation>
    </message>
</context>
</TS>
