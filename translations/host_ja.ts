<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>host</name>
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
        <source>The program has no command &quot;%1&quot;; its direction is empty.</source>
        <translation>プログラムにコマンド「%1」がないため、その方向は空です。</translation>
    </message>
</context>
</TS>
