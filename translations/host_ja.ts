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
        <source>Mouse gestures start with %1. Set it by mouse-gestures --trigger %2</source>
        <translation>マウスジェスチャーは %1 で始まります。変更: mouse-gestures --trigger %2</translation>
    </message>
    <message>
        <source>This is the ring of all tasks.</source>
        <translation>これはすべての作業で使うリングです。</translation>
    </message>
    <message>
        <source>This is the ring of %1.</source>
        <translation>これは %1 のリングです。</translation>
    </message>
</context>
</TS>
