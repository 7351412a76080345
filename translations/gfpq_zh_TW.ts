<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>組態元件</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>元件系列： </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>組態模式： </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>自訂資料庫目錄：</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>名稱篩選：</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>元件名稱： </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>元件 ID： </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>元件 I/O 電壓： </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>元件容量： </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>晶粒總數：</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>單線 I/O 模式空時脈週期數： </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>四線 I/O 模式空時脈週期數：</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>燒錄流程範本： </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編輯...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>另存為範本</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1：流程圖</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1：動作</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1：所選動作的屬性</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>元件</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>無法儲存快閃記憶體元件，因為「%1」分頁中有無效的屬性值： 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>範本名稱「%1」與元件名稱 %2 衝突。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>無法將自訂資料庫目錄設定為 </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>瀏覽</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>例如 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>動作：</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>編輯範本</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>範本：</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
</TS>
