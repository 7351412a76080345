<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>コンフィギュレーションデバイス</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>デバイスファミリー: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>コンフィギュレーションモード: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>カスタムデータベースのディレクトリ:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>名前で絞り込み:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>デバイス名: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>デバイス ID: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>デバイス I/O 電圧: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>デバイス容量: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>ダイの総数:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>シングル I/O モードのダミーサイクル数: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>クアッド I/O モードのダミーサイクル数:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>プログラミングフローのテンプレート: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>テンプレートとして保存</translation>
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
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1: フローチャート</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: アクション</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: 選択したアクションのプロパティ</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>「%1」タブに無効なプロパティ値があるため、フラッシュデバイスを保存できませんでした: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>テンプレート名「%1」はデバイス名 %2 と競合しています。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>カスタムデータベースのディレクトリを次の場所に設定できませんでした: </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>例: 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>アクション:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>テンプレートの編集</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>テンプレート:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
</TS>
