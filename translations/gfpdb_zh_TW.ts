<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>gfpdb</name>
    <message>
        <source>Upper and lower case count as the same.</source>
        <translation>不區分大小寫。</translation>
    </message>
    <message>
        <source>There is a built-in device called %1: choose another name.</source>
        <translation>已有名為 %1 的內建元件：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>There is a built-in template called %1: choose another name.</source>
        <translation>已有名為 %1 的內建範本：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>part name</source>
        <translation>型號名稱</translation>
    </message>
    <message>
        <source>The device %1 is neither deleted nor replaced, because it could not be read when it was last looked for: %2</source>
        <translation>元件 %1 既未刪除也未取代，因為上次尋找時無法讀取它：%2</translation>
    </message>
    <message>
        <source>The flows of %1 in %2 cannot be read.</source>
        <translation>無法讀取 %2 中 %1 的流程。</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a number.</source>
        <translation>元件的屬性 %1 不是數字。</translation>
    </message>
    <message>
        <source>Property %1 of a device is not a text.</source>
        <translation>元件的屬性 %1 不是文字。</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name.</source>
        <translation>已有名為 %1 的已儲存範本：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>There is a device called %1: it is the one that is shown. Enter another name to rename it.</source>
        <translation>已有名為 %1 的元件：即目前顯示的元件。要重新命名，請輸入其他名稱。</translation>
    </message>
    <message>
        <source>There is a device called %1 for this family and configuration mode: choose another name.</source>
        <translation>此系列和組態模式下已有名為 %1 的元件：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>There is a stored template called %1: choose another name, or remove that template first.</source>
        <translation>已有名為 %1 的已儲存範本：請選擇其他名稱，或先移除該範本。</translation>
    </message>
    <message>
        <source>The template name %1 differs from the device name %2 in case only: choose another name.</source>
        <translation>範本名稱 %1 與元件名稱 %2 僅大小寫不同：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>There is a device called %1: choose another name.</source>
        <translation>已有名為 %1 的元件：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>A flash device with an I/O voltage of %1 cannot be connected to %2 devices: it must support 1.8 V.</source>
        <translation>I/O 電壓為 %1 的快閃記憶體元件不能連接到 %2 元件：它必須支援 1.8 V。</translation>
    </message>
    <message>
        <source>%1 The device %2 that was deleted before was not put back: %3</source>
        <translation>%1先前刪除的元件 %2 未能還原：%3</translation>
    </message>
    <message>
        <source>There is no record to save.</source>
        <translation>沒有可儲存的記錄。</translation>
    </message>
    <message>
        <source>The configuration mode has no flash devices.</source>
        <translation>此組態模式沒有快閃記憶體元件。</translation>
    </message>
    <message>
        <source>The device %1 contains text that is not valid UTF-8.</source>
        <translation>元件 %1 含有不是有效 UTF-8 的文字。</translation>
    </message>
    <message>
        <source>The template %1 is built in: it cannot be removed.</source>
        <translation>範本 %1 是內建的：無法移除。</translation>
    </message>
    <message>
        <source>device name</source>
        <translation>元件名稱</translation>
    </message>
    <message>
        <source>device ID</source>
        <translation>元件 ID</translation>
    </message>
    <message>
        <source>I/O voltage</source>
        <translation>元件 I/O 電壓</translation>
    </message>
    <message>
        <source>density</source>
        <translation>元件容量</translation>
    </message>
    <message>
        <source>total die count</source>
        <translation>晶粒總數</translation>
    </message>
    <message>
        <source>number of single-I/O dummy clocks</source>
        <translation>單線 I/O 模式空時脈週期數</translation>
    </message>
    <message>
        <source>number of quad-I/O dummy clocks</source>
        <translation>四線 I/O 模式空時脈週期數</translation>
    </message>
    <message>
        <source>template name</source>
        <translation>範本名稱</translation>
    </message>
    <message>
        <source>flow template</source>
        <translation>燒錄流程範本</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 到 %2 的整數</translation>
    </message>
    <message>
        <source>one byte in hexadecimal, such as 0x9F</source>
        <translation>一個十六進位位元組，例如 0x9F</translation>
    </message>
    <message>
        <source>1 to %1 bytes in hexadecimal separated by single spaces, such as 0x00 0x02</source>
        <translation>1 到 %1 個十六進位位元組，以單一空格分隔，例如 0x00 0x02</translation>
    </message>
    <message>
        <source>an address of eight hexadecimal digits, such as 0x00010000</source>
        <translation>八位十六進位位址，例如 0x00010000</translation>
    </message>
    <message>
        <source>%1, or %2</source>
        <translation>%1，或%2</translation>
    </message>
    <message>
        <source>text of 1 to %1 characters on one line</source>
        <translation>單行的 1 到 %1 個字元</translation>
    </message>
    <message>
        <source>a power of two from 1 to %1</source>
        <translation>1 到 %1 的 2 的冪</translation>
    </message>
    <message>
        <source>Loop marker</source>
        <translation>迴圈標記</translation>
    </message>
    <message>
        <source>There is no action property with the number %1. Allowed: 0 to %2.</source>
        <translation>沒有編號為 %1 的動作屬性。允許：0 到 %2。</translation>
    </message>
    <message>
        <source>An empty value</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>%1 is not allowed for &quot;%2&quot;. Allowed: %3.</source>
        <translation>%1 不能用於「%2」。允許：%3。</translation>
    </message>
    <message>
        <source>The %1 is empty: 1 to %2 characters are allowed.</source>
        <translation>「%1」是空的：允許 1 到 %2 個字元。</translation>
    </message>
    <message>
        <source>The %1 has characters that cannot be stored.</source>
        <translation>「%1」含有無法儲存的字元。</translation>
    </message>
    <message>
        <source>The %1 has %2 characters: 1 to %3 characters are allowed.</source>
        <translation>「%1」有 %2 個字元：允許 1 到 %3 個字元。</translation>
    </message>
    <message>
        <source>The %1 has a line break or another control character: use letters, digits, punctuation and spaces.</source>
        <translation>「%1」含有換行或其他控制字元：請使用字母、數字、標點和空格。</translation>
    </message>
    <message>
        <source>The %1 %2 begins or ends with a space: remove it.</source>
        <translation>「%1」%2 以空格開頭或結尾：請將其刪除。</translation>
    </message>
    <message>
        <source>The %1 %2 is reserved for a new device: choose another.</source>
        <translation>「%1」%2 保留給新元件：請選擇其他名稱。</translation>
    </message>
    <message>
        <source>%1 Enter 1 to %2 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.</source>
        <translation>%1請輸入 1 到 %2 個十六進位位元組，以空格或逗號分隔，例如 0xC2 0x20 0x19。</translation>
    </message>
    <message>
        <source>The device ID is empty.</source>
        <translation>元件 ID 是空的。</translation>
    </message>
    <message>
        <source>%1 is not a byte of a device ID.</source>
        <translation>%1 不是元件 ID 的位元組。</translation>
    </message>
    <message>
        <source>The device ID has %1 bytes.</source>
        <translation>元件 ID 有 %1 個位元組。</translation>
    </message>
    <message>
        <source>The %1 %2 is out of range: %3 to %4 are allowed.</source>
        <translation>「%1」的值 %2 超出範圍：允許 %3 到 %4。</translation>
    </message>
    <message>
        <source>The %1 %2 is not known: choose one of %3.</source>
        <translation>「%1」的值 %2 未知：請從 %3 中選擇。</translation>
    </message>
    <message>
        <source>The loop that starts at action %1 has no end.</source>
        <translation>從動作 %1 開始的迴圈沒有結束。</translation>
    </message>
    <message>
        <source>A loop over each %1 cannot be in a loop over each %2. Allowed: a loop over each page or sector in a loop over each die.</source>
        <translation>「%1」迴圈不能在「%2」迴圈中。允許：「die」迴圈中的「page」或「sector」迴圈。</translation>
    </message>
    <message>
        <source>The end of a loop has no start before it.</source>
        <translation>迴圈結束之前沒有開始。</translation>
    </message>
    <message>
        <source>The end of a loop over each %1 closes a loop over each %2.</source>
        <translation>「%1」迴圈的結束關閉了「%2」迴圈。</translation>
    </message>
    <message>
        <source>The loop over each %1 has no %2 action to determine its step size.</source>
        <translation>「%1」迴圈中沒有決定步長的「%2」動作。</translation>
    </message>
    <message>
        <source>One of several erases in a loop has a fixed address. Allowed: loop or die.</source>
        <translation>迴圈中多個抹除之一的位址是固定的。允許：loop 或 die。</translation>
    </message>
    <message>
        <source>The loop has page sizes of %1 and of %2. Allowed: one page size in a loop.</source>
        <translation>迴圈中有 %1 和 %2 兩種頁面大小。允許：一個迴圈一種頁面大小。</translation>
    </message>
    <message>
        <source>The erase sizes %1 and %2 do not go together in one loop. Allowed: sizes of which each divides every larger one.</source>
        <translation>抹除大小 %1 和 %2 不能在同一迴圈中。允許：每個大小都能整除所有更大的大小。</translation>
    </message>
    <message>
        <source>The value &quot;loop&quot; is outside any loop.</source>
        <translation>值「loop」在所有迴圈之外。</translation>
    </message>
    <message>
        <source>The value &quot;die&quot; is outside a loop over each die.</source>
        <translation>值「die」在「die」迴圈之外。</translation>
    </message>
    <message>
        <source>The action has %1 address bytes, an earlier one has %2. Allowed: the same number in all actions of a flow.</source>
        <translation>此動作有 %1 個位址位元組，先前的動作有 %2 個。允許：一個流程的所有動作使用相同的位元組數。</translation>
    </message>
    <message>
        <source>The flows cannot be read.</source>
        <translation>無法讀取流程。</translation>
    </message>
    <message>
        <source>The device and its template need different names: both are called %1.</source>
        <translation>元件與其範本需要不同的名稱：兩者都叫 %1。</translation>
    </message>
    <message>
        <source>There is no family %1. Allowed: %2 to %3.</source>
        <translation>沒有系列 %1。允許：%2 到 %3。</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no flash devices.</source>
        <translation>組態模式 %1 沒有快閃記憶體元件。</translation>
    </message>
    <message>
        <source>The %1 %2 is not a usual one. Usual: %3.</source>
        <translation>「%1」的值 %2 不常用。常用：%3。</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no flows: the dialog drops them.</source>
        <translation>此組態模式的元件沒有流程：對話方塊會將其捨棄。</translation>
    </message>
    <message>
        <source>There are no flows.</source>
        <translation>沒有流程。</translation>
    </message>
    <message>
        <source>There are no flows for this configuration mode.</source>
        <translation>沒有用於此組態模式的流程。</translation>
    </message>
    <message>
        <source>The value is missing: %1 is stored.</source>
        <translation>缺少值：將儲存 %1。</translation>
    </message>
    <message>
        <source>Devices of this configuration mode have no such value: the dialog drops it.</source>
        <translation>此組態模式的元件沒有此值：對話方塊會將其捨棄。</translation>
    </message>
    <message>
        <source>The copy in %1 cannot be compared: %2</source>
        <translation>無法比較 %1 中的副本：%2</translation>
    </message>
    <message>
        <source>The copy in %1 is not the same as %2.</source>
        <translation>%1 中的副本與 %2 不相同。</translation>
    </message>
    <message>
        <source>There is nothing to copy in %1.</source>
        <translation>%1 中沒有可複製的內容。</translation>
    </message>
    <message>
        <source>an unknown day</source>
        <translation>未知日期</translation>
    </message>
    <message>
        <source>an unknown user</source>
        <translation>未知使用者</translation>
    </message>
    <message>
        <source>The stored template %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>在此處尋找已儲存範本 %1 之後，%2 儲存了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was stored by %2 on %3 since it was looked for here.</source>
        <translation>在此處尋找元件 %1 之後，%2 儲存了它（%3）。</translation>
    </message>
    <message>
        <source>The stored template %1 was changed by %2 on %3 since it was read here.</source>
        <translation>在此處讀取已儲存範本 %1 之後，%2 變更了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was changed by %2 on %3 since it was read here.</source>
        <translation>在此處讀取元件 %1 之後，%2 變更了它（%3）。</translation>
    </message>
    <message>
        <source>The stored template %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>在此處讀取已儲存範本 %1 之後，%2 刪除了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was renamed by %2 on %3 since it was read here.</source>
        <translation>在此處讀取元件 %1 之後，%2 重新命名了它（%3）。</translation>
    </message>
    <message>
        <source>The device %1 was deleted by %2 on %3 since it was read here.</source>
        <translation>在此處讀取元件 %1 之後，%2 刪除了它（%3）。</translation>
    </message>
    <message>
        <source>Try again to store it as a new one.</source>
        <translation>請重試，以將其儲存為新記錄。</translation>
    </message>
    <message>
        <source>Look at it again, or try again: then that state goes into the history.</source>
        <translation>請重新查看，或重試：屆時該狀態會進入歷史記錄。</translation>
    </message>
    <message>
        <source>The database in %1 is not empty.</source>
        <translation>%1 中的資料庫不是空的。</translation>
    </message>
</context>
</TS>
