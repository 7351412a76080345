<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>GFPC_CHARTS</name>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>無法讀取 %1 的流程。</translation>
    </message>
    <message>
        <source>%1 has no quad-I/O flow.</source>
        <translation>%1 沒有四線 I/O 流程。</translation>
    </message>
    <message>
        <source>%1 has no single-I/O flow.</source>
        <translation>%1 沒有單線 I/O 流程。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 頁，共 %2 頁</translation>
    </message>
    <message>
        <source>There are no fonts on this computer.</source>
        <translation>此電腦上沒有字型。</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>四線 I/O 流程</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>單線 I/O 流程</translation>
    </message>
</context>
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
    <message>
        <source>A stored template called %1 already exists.</source>
        <translation>已有名為 %1 的已儲存範本。</translation>
    </message>
    <message>
        <source>A device called %1 already exists.</source>
        <translation>已有名為 %1 的元件。</translation>
    </message>
    <message>
        <source>There is no state %1 in the history.</source>
        <translation>歷史記錄中沒有狀態 %1。</translation>
    </message>
    <message>
        <source>The database in %1 is another one now.</source>
        <translation>%1 中的資料庫已是另一個資料庫。</translation>
    </message>
    <message>
        <source>It is state %1 of the history.</source>
        <translation>它是歷史記錄中的狀態 %1。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is a link or not a regular file. Remove it if you did not put it there.</source>
        <translation>未使用資料庫 %1：%2 是連結或不是一般檔案。如果不是您放置的，請將其刪除。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program, and would change it. Close the database in that program. If the file is still there then, move it to another directory.</source>
        <translation>未使用資料庫 %1：%2 由其他程式寫入，會變更資料庫。請在該程式中關閉資料庫。如果檔案仍在，請將其移到其他目錄。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 was written by another program for several databases at once, and names a file that would be removed. Open the database in that program, or move the file to another directory.</source>
        <translation>未使用資料庫 %1：%2 由其他程式為多個資料庫同時寫入，並指向一個會被刪除的檔案。請在該程式中開啟資料庫，或將檔案移到其他目錄。</translation>
    </message>
    <message>
        <source>The database %1 is not used: %2 is the journal of another database, or of another state of this one, and would damage it. Move that file to another directory, then try again.</source>
        <translation>未使用資料庫 %1：%2 是其他資料庫或此資料庫其他狀態的日誌，會損壞它。請將該檔案移到其他目錄，然後重試。</translation>
    </message>
    <message>
        <source>The database %1 is locked by another program (%2).</source>
        <translation>資料庫 %1 被其他程式鎖定 (%2)。</translation>
    </message>
    <message>
        <source>The database %1 cannot be written (%2).</source>
        <translation>無法寫入資料庫 %1 (%2)。</translation>
    </message>
    <message>
        <source>The database %1 is damaged (%2). It is left as it is.</source>
        <translation>資料庫 %1 已損毀 (%2)。將保持原樣。</translation>
    </message>
    <message>
        <source>There is no room for the database %1 (%2).</source>
        <translation>沒有空間可用於資料庫 %1 (%2)。</translation>
    </message>
    <message>
        <source>The file %1 is not a database (%2). It is left as it is.</source>
        <translation>檔案 %1 不是資料庫 (%2)。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 cannot be used: %2 (%3).</source>
        <translation>無法使用資料庫 %1：%2 (%3)。</translation>
    </message>
    <message>
        <source>The SQLite driver of Qt is not installed.</source>
        <translation>未安裝 Qt 的 SQLite 驅動程式。</translation>
    </message>
    <message>
        <source>The database %1 was left in the middle of a change by a program that ended there. It can be read again when someone who can write it has opened it once.</source>
        <translation>某個程式中途結束，使資料庫 %1 停留在變更過程中。由有寫入權限的人開啟一次後即可再次讀取。</translation>
    </message>
    <message>
        <source>The database %1 can be read, but not changed: %2.</source>
        <translation>資料庫 %1 可以讀取，但不能變更：%2。</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be read: %2.</source>
        <translation>無法讀取資料庫目錄 %1：%2。</translation>
    </message>
    <message>
        <source>The database directory %1 does not exist.</source>
        <translation>資料庫目錄 %1 不存在。</translation>
    </message>
    <message>
        <source>The database directory %1 is not a directory: a part of it is a file.</source>
        <translation>資料庫目錄 %1 不是目錄：其中一部分是檔案。</translation>
    </message>
    <message>
        <source>The database directory %1 cannot be reached: %2.</source>
        <translation>無法存取資料庫目錄 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是檔案。</translation>
    </message>
    <message>
        <source>The database %1 is empty: its content was lost. It is left as it is; restore a backup copy, or delete it to start over.</source>
        <translation>資料庫 %1 是空的：其內容已遺失。將保持原樣；請用複本取代，或將其刪除以重新開始。</translation>
    </message>
    <message>
        <source>The file %1 is not a database (too short). It is left as it is.</source>
        <translation>檔案 %1 不是資料庫（太短）。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached: it is a link to %2 (%3). Is the drive or the share that it is on connected?</source>
        <translation>無法存取資料庫 %1：它是指向 %2 的連結 (%3)。其所在的磁碟機或共用是否已連線？</translation>
    </message>
    <message>
        <source>The database %1 cannot be reached (%2). Is the drive or the share that it is on connected?</source>
        <translation>無法存取資料庫 %1 (%2)。其所在的磁碟機或共用是否已連線？</translation>
    </message>
    <message>
        <source>There is no database %1, but %2, which a program left that was writing it. Put the database back, or move that file to another directory to begin with an empty database.</source>
        <translation>資料庫 %1 不存在，但有 %2，是正在寫入它的程式遺留的。請放回資料庫，或將該檔案移到其他目錄，以空資料庫開始。</translation>
    </message>
    <message>
        <source>The database directory %1 holds no database, and none can be created: %2.</source>
        <translation>資料庫目錄 %1 中沒有資料庫，也無法建立：%2。</translation>
    </message>
    <message>
        <source>The database %1 is damaged (its end is missing). It is left as it is.</source>
        <translation>資料庫 %1 已損毀（缺少結尾）。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 cannot be created: %2.</source>
        <translation>無法建立資料庫 %1：%2。</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>資料庫 %1 在使用期間被其他程式取代或刪除。未做任何變更：請查看現有的元件，然後重試。</translation>
    </message>
    <message>
        <source>%1 Whether the change was stored cannot be read: look at the devices before you try again.</source>
        <translation>%1無法讀取變更是否已儲存：請先查看元件再重試。</translation>
    </message>
    <message>
        <source>The database %1 was replaced or removed by another program while a change was stored, which is lost: look at the devices that are there now, then try again.</source>
        <translation>資料庫 %1 在儲存變更時被其他程式取代或刪除，該變更已遺失：請查看現有的元件，然後重試。</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its texts are %2, not UTF-8. It is left as it is.</source>
        <translation>資料庫 %1 被其他程式改動：其文字是 %2，而不是 UTF-8。將保持原樣。</translation>
    </message>
    <message>
        <source>The file %1 is a database of another program. It is left as it is.</source>
        <translation>檔案 %1 是其他程式的資料庫。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer program (its schema is %2, this program knows up to %3). It is left as it is.</source>
        <translation>資料庫 %1 由較新的程式寫入（其結構為 %2，此程式最高支援 %3）。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 was altered by another program: its tables are not those of schema %2. It is left as it is.</source>
        <translation>資料庫 %1 被其他程式改動：其資料表不是結構 %2 的資料表。將保持原樣。</translation>
    </message>
    <message>
        <source>The database in %1 is damaged: %2</source>
        <translation>%1 中的資料庫已損毀：%2</translation>
    </message>
    <message>
        <source>The database server %1 did not answer in time.</source>
        <translation>資料庫伺服器 %1 未及時回應。</translation>
    </message>
    <message>
        <source>The database server %1 cannot be reached: %2.</source>
        <translation>無法存取資料庫伺服器 %1：%2。</translation>
    </message>
    <message>
        <source>The database server %1 refused: %2.</source>
        <translation>資料庫伺服器 %1 拒絕：%2。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 does not allow that to the login %3: its administrator can grant the role %4 or %5.</source>
        <translation>伺服器 %2 上的資料庫 %1 不允許登入 %3 這樣做：其管理員可以授予角色 %4 或 %5。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 has no schema %3 for devices: its administrator can make it with &quot;gfpdb server sql&quot;.</source>
        <translation>伺服器 %2 上的資料庫 %1 沒有用於元件的結構 %3：其管理員可以用「gfpdb server sql」建立。</translation>
    </message>
    <message>
        <source>There is no room for the change on the server %1.</source>
        <translation>伺服器 %1 上沒有空間儲存變更。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is locked by another program.</source>
        <translation>伺服器 %2 上的資料庫 %1 被其他程式鎖定。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is changed by too many programs now: try again.</source>
        <translation>目前有太多程式正在變更伺服器 %2 上的資料庫 %1：請重試。</translation>
    </message>
    <message>
        <source>The directory %1 has the database %2 and names a server in %3. Move the database to another directory, and copy its records from there to the server with &quot;gfpdb copy&quot;.</source>
        <translation>目錄 %1 中有資料庫 %2，同時 %3 中指定了伺服器。請將資料庫移到其他目錄，再用「gfpdb copy」將其記錄複製到伺服器。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 cannot be read by the login %3: its administrator can grant the role %4.</source>
        <translation>登入 %3 無法讀取伺服器 %2 上的資料庫 %1：其管理員可以授予角色 %4。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the server takes no changes now.</source>
        <translation>伺服器 %2 上的資料庫 %1 可以讀取，但不能變更：伺服器目前不接受變更。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 can be read, but not changed: the login %3 has not the role %4.</source>
        <translation>伺服器 %2 上的資料庫 %1 可以讀取，但不能變更：登入 %3 沒有角色 %4。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by a newer program (schema %3). It is left as it is.</source>
        <translation>伺服器 %2 上的資料庫 %1 由較新的程式寫入（結構 %3）。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is a database of another program. It is left as it is.</source>
        <translation>伺服器 %2 上的資料庫 %1 是其他程式的資料庫。將保持原樣。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was written by an older program (schema %3): it can be used when someone with the role %4 has opened it once.</source>
        <translation>伺服器 %2 上的資料庫 %1 由較舊的程式寫入（結構 %3）：由具有角色 %4 的人開啟一次後即可使用。</translation>
    </message>
    <message>
        <source>The file %1 names a server since the directory was opened: open it again.</source>
        <translation>開啟目錄之後，檔案 %1 指定了伺服器：請重新開啟該目錄。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>晶粒數</translation>
    </message>
    <message>
        <source>Dies are selected by C2</source>
        <translation>用 C2 選擇晶粒</translation>
    </message>
    <message>
        <source>Page size (bytes)</source>
        <translation>頁大小(位元組)</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>位址位元組數</translation>
    </message>
    <message>
        <source>4-byte addressing, enter</source>
        <translation>4 位元組定址，進入</translation>
    </message>
    <message>
        <source>4-byte addressing, leave</source>
        <translation>4 位元組定址，離開</translation>
    </message>
    <message>
        <source>4-byte addressing, register and bit</source>
        <translation>4 位元組定址，暫存器和位元</translation>
    </message>
    <message>
        <source>Quad enable</source>
        <translation>四線啟用</translation>
    </message>
    <message>
        <source>Unlock blocks</source>
        <translation>解鎖區塊</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Busy is read by</source>
        <translation>忙碌狀態讀取</translation>
    </message>
    <message>
        <source>Dummy clocks, single</source>
        <translation>空時脈週期，單線</translation>
    </message>
    <message>
        <source>Quad read</source>
        <translation>四線讀取</translation>
    </message>
    <message>
        <source>Dummy clocks, quad</source>
        <translation>空時脈週期，四線</translation>
    </message>
    <message>
        <source>Quad program</source>
        <translation>四線燒錄</translation>
    </message>
    <message>
        <source>Page program, longest wait (us)</source>
        <translation>頁燒錄，最長等待 (us)</translation>
    </message>
    <message>
        <source>Erase, longest wait (ms)</source>
        <translation>抹除，最長等待 (ms)</translation>
    </message>
    <message>
        <source>from the ID</source>
        <translation>來自 ID</translation>
    </message>
    <message>
        <source>from the density</source>
        <translation>來自容量</translation>
    </message>
    <message>
        <source>assumed</source>
        <translation>假定</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>已輸入</translation>
    </message>
    <message>
        <source>The command is on four lines, but the single-I/O flow has one.</source>
        <translation>此命令使用四線，但單線 I/O 流程只有一線。</translation>
    </message>
    <message>
        <source>The image is compared with a mask: its bytes with bits that the mask clears never match.</source>
        <translation>映像檔依遮罩比較：含有被遮罩清除之位元的位元組永遠不會相符。</translation>
    </message>
    <message>
        <source>The expected data have bits that the mask clears: they never match.</source>
        <translation>預期資料中有被遮罩清除的位元：永遠不會相符。</translation>
    </message>
    <message>
        <source>The mask has no bit: whatever is read matches.</source>
        <translation>遮罩沒有任何位元：讀到什麼都會相符。</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: what is beyond the end of a page overwrites its start.</source>
        <translation>頁面大小為 %1，但裝置的頁面為 %2 位元組：超出頁尾的內容會覆寫頁首。</translation>
    </message>
    <message>
        <source>The page size is %1, but the part has pages of %2 bytes: programming takes longer than necessary.</source>
        <translation>頁面大小為 %1，但裝置的頁面為 %2 位元組：燒錄耗時比必要的長。</translation>
    </message>
    <message>
        <source>Data are changed in an operation that is also executed when the user asked for neither Program nor Erase.</source>
        <translation>在使用者既未要求 Program 也未要求 Erase 時也會執行的操作中變更了資料。</translation>
    </message>
    <message>
        <source>Three address bytes reach %1 bytes, but the action works on %2.</source>
        <translation>三個位址位元組可達 %1 位元組，但此動作涉及 %2 位元組。</translation>
    </message>
    <message>
        <source>The command does not have the bus width %1. Allowed: %2.</source>
        <translation>此命令沒有匯流排寬度 %1。允許：%2。</translation>
    </message>
    <message>
        <source>This is a command that programs.</source>
        <translation>這是燒錄命令。</translation>
    </message>
    <message>
        <source>This is a command that reads data.</source>
        <translation>這是讀取資料的命令。</translation>
    </message>
    <message>
        <source>This is a command that erases.</source>
        <translation>這是抹除命令。</translation>
    </message>
    <message>
        <source>The command has no dummy clocks.</source>
        <translation>此命令沒有空時脈週期。</translation>
    </message>
    <message>
        <source>The command has two dummy clocks at least, its mode clocks.</source>
        <translation>此命令至少有兩個空時脈週期，即模式時脈。</translation>
    </message>
    <message>
        <source>Nothing in the loop depends on its step: every step does the same.</source>
        <translation>迴圈中沒有任何內容取決於步驟：每一步都相同。</translation>
    </message>
    <message>
        <source>The device has one die: the loop has one step.</source>
        <translation>裝置只有一個裸晶：迴圈只有一步。</translation>
    </message>
    <message>
        <source>There is no ID check: the flow changes whatever chip is connected.</source>
        <translation>沒有 ID 檢查：流程會變更所連接的任何晶片。</translation>
    </message>
    <message>
        <source>The chip is changed before its ID is checked.</source>
        <translation>晶片在其 ID 檢查之前被變更。</translation>
    </message>
    <message>
        <source>4-byte addressing is entered here, and Termination does not leave it.</source>
        <translation>此處進入 4 位元組定址，但 Termination 未離開。</translation>
    </message>
    <message>
        <source>No command uses this write enable.</source>
        <translation>沒有命令使用此寫入致能。</translation>
    </message>
    <message>
        <source>The chip is in deep power-down and ignores the command.</source>
        <translation>晶片處於深度省電模式，會忽略此命令。</translation>
    </message>
    <message>
        <source>The command follows the reset that brings the chip to its end.</source>
        <translation>此命令位於使晶片進入最終狀態的重設之後。</translation>
    </message>
    <message>
        <source>The command is on four lines, and nothing before it sets or checks the quad-enable bit.</source>
        <translation>此命令使用四線，但之前沒有設定或檢查 Quad Enable 位元。</translation>
    </message>
    <message>
        <source>%1 us are waited for instead of asking whether the chip is ready.</source>
        <translation>等待 %1 µs，而不是詢問晶片是否就緒。</translation>
    </message>
    <message>
        <source>Nothing waits until the chip is ready: it ignores the commands that follow.</source>
        <translation>沒有等待晶片就緒：它會忽略後面的命令。</translation>
    </message>
    <message>
        <source>There is no write enable before it: the chip ignores the command.</source>
        <translation>之前沒有寫入致能：晶片會忽略此命令。</translation>
    </message>
    <message>
        <source>The command has no address, but the action sends one.</source>
        <translation>此命令沒有位址，但動作傳送了位址。</translation>
    </message>
    <message>
        <source>The command has an address, but the action sends none.</source>
        <translation>此命令有位址，但動作沒有傳送。</translation>
    </message>
    <message>
        <source>The command always has four address bytes, but the action sends three.</source>
        <translation>此命令總有四個位址位元組，但動作傳送三個。</translation>
    </message>
    <message>
        <source>The action sends four address bytes, but nothing before it enters 4-byte addressing.</source>
        <translation>此動作傳送四個位址位元組，但之前沒有進入 4 位元組定址。</translation>
    </message>
    <message>
        <source>The action sends three address bytes, but 4-byte addressing was entered before.</source>
        <translation>此動作傳送三個位址位元組，但之前已進入 4 位元組定址。</translation>
    </message>
    <message>
        <source>Template name</source>
        <translation>範本名稱</translation>
    </message>
    <message>
        <source>Flow template</source>
        <translation>流程範本</translation>
    </message>
    <message>
        <source>an unpaired surrogate is not a character</source>
        <translation>未成對的代理項不是字元</translation>
    </message>
    <message>
        <source>the name %1 occurs twice</source>
        <translation>名稱 %1 出現兩次</translation>
    </message>
    <message>
        <source>values are nested too deeply</source>
        <translation>值的巢狀過深</translation>
    </message>
    <message>
        <source>there is text after the end</source>
        <translation>結尾之後還有文字</translation>
    </message>
    <message>
        <source>an object needs a name in double quotes here</source>
        <translation>此處物件需要以雙引號括住的名稱</translation>
    </message>
    <message>
        <source>&quot;:&quot; is missing after %1</source>
        <translation>%1 之後缺少冒號</translation>
    </message>
    <message>
        <source>an object needs &quot;,&quot; or &quot;}&quot; here</source>
        <translation>此處物件需要「,」或「}」</translation>
    </message>
    <message>
        <source>a list needs &quot;,&quot; or &quot;]&quot; here</source>
        <translation>此處清單需要「,」或「]」</translation>
    </message>
    <message>
        <source>\u needs four hexadecimal digits</source>
        <translation>\u 需要四位十六進位數字</translation>
    </message>
    <message>
        <source>a string is not terminated</source>
        <translation>字串未結束</translation>
    </message>
    <message>
        <source>there is no such escape</source>
        <translation>沒有此逸出序列</translation>
    </message>
    <message>
        <source>a string has a control character or a line break in it</source>
        <translation>字串中有控制字元或換行</translation>
    </message>
    <message>
        <source>a string is not UTF-8</source>
        <translation>字串不是 UTF-8</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>數字過大</translation>
    </message>
    <message>
        <source>a value was expected</source>
        <translation>應為一個值</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>字串</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>物件</translation>
    </message>
    <message>
        <source>A string was expected, but this is %1.</source>
        <translation>應為字串，但此處是：%1。</translation>
    </message>
    <message>
        <source>A list was expected, but this is %1.</source>
        <translation>應為清單，但此處是：%1。</translation>
    </message>
    <message>
        <source>An object was expected, but this is %1.</source>
        <translation>應為物件，但此處是：%1。</translation>
    </message>
    <message>
        <source>%1 is not known here. Allowed: %2.</source>
        <translation>此處無法識別 %1。允許：%2。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>缺少 %1。</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>無法讀取目錄 %1：%2。</translation>
    </message>
    <message>
        <source>device %1: %2</source>
        <translation>元件 %1：%2</translation>
    </message>
    <message>
        <source>stored template %1: %2</source>
        <translation>已儲存的範本 %1：%2</translation>
    </message>
    <message>
        <source>The device %1 is already in %2.</source>
        <translation>元件 %1 已在 %2 中。</translation>
    </message>
    <message>
        <source>The stored template %1 is already in %2.</source>
        <translation>已儲存的範本 %1 已在 %2 中。</translation>
    </message>
    <message>
        <source>The device %1 exists with different content: --replace replaces it.</source>
        <translation>元件 %1 已存在但內容不同：--replace 可將其取代。</translation>
    </message>
    <message>
        <source>The stored template %1 exists with different content: --replace replaces it.</source>
        <translation>已儲存的範本 %1 已存在但內容不同：--replace 可將其取代。</translation>
    </message>
    <message>
        <source>The name of the device %1 is that of a stored template.</source>
        <translation>元件 %1 的名稱是某個已儲存範本的名稱。</translation>
    </message>
    <message>
        <source>The name of the stored template %1 is that of a device.</source>
        <translation>已儲存的範本 %1 的名稱是某個元件的名稱。</translation>
    </message>
    <message>
        <source>The column is missing.</source>
        <translation>缺少此欄。</translation>
    </message>
    <message>
        <source>The column is not known. Allowed: %1.</source>
        <translation>未知的欄。允許：%1。</translation>
    </message>
    <message>
        <source>The column occurs twice.</source>
        <translation>此欄出現兩次。</translation>
    </message>
    <message>
        <source>A quote that opens in this row is never closed.</source>
        <translation>此列中開啟的引號沒有關閉。</translation>
    </message>
    <message>
        <source>The row has 1 cell, the line of column names has %1.</source>
        <translation>此列有 1 個儲存格，欄名列有 %1 個。</translation>
    </message>
    <message>
        <source>The row has %1 cells, the line of column names has %2.</source>
        <translation>此列有 %1 個儲存格，欄名列有 %2 個。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>無法讀取檔案：%1。</translation>
    </message>
    <message>
        <source>This is not valid JSON: %1.</source>
        <translation>不是有效的 JSON：%1。</translation>
    </message>
    <message>
        <source>This is not a file of records. Allowed: %1.</source>
        <translation>這不是記錄檔案。允許：%1。</translation>
    </message>
    <message>
        <source>This version of the format is not known. Allowed: %1.</source>
        <translation>未知的格式版本。允許：%1。</translation>
    </message>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>文字不是 UTF-8。</translation>
    </message>
    <message>
        <source>A whole number or null was expected, but this is %1.</source>
        <translation>應為整數或 null，但此處是：%1。</translation>
    </message>
    <message>
        <source>device family</source>
        <translation>元件系列</translation>
    </message>
    <message>
        <source>configuration mode</source>
        <translation>組態模式</translation>
    </message>
    <message>
        <source>single-I/O flow</source>
        <translation>單線 I/O 流程</translation>
    </message>
    <message>
        <source>quad-I/O flow</source>
        <translation>四線 I/O 流程</translation>
    </message>
    <message>
        <source>This operation occurs twice.</source>
        <translation>此操作出現兩次。</translation>
    </message>
    <message>
        <source>There is no such operation. Allowed: %1.</source>
        <translation>沒有此操作。允許：%1。</translation>
    </message>
    <message>
        <source>There is no such action. Allowed: %1.</source>
        <translation>沒有此動作。允許：%1。</translation>
    </message>
    <message>
        <source>The flows of %1 cannot be read.</source>
        <translation>無法讀取 %1 的流程。</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.</source>
        <translation>元件最多有 %1 個單線 I/O 空時脈週期：副本採用此值，其流程仍為 %3 的 %2 個。</translation>
    </message>
    <message>
        <source>The configuration mode %1 has no serial flash devices.</source>
        <translation>組態模式 %1 沒有序列快閃記憶體元件。</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>頁大小</translation>
    </message>
    <message>
        <source>quad-I/O dummy clocks</source>
        <translation>四線 I/O 空時脈週期</translation>
    </message>
    <message>
        <source>%1: %2 in the list, %3 by %4</source>
        <translation>%1：清單中為 %2，%4 中為 %3</translation>
    </message>
    <message>
        <source>address bytes</source>
        <translation>位址位元組數</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>erase by %1</source>
        <translation>以 %1 抹除</translation>
    </message>
    <message>
        <source>not</source>
        <translation>無</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 位元組</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>reserved</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>quad enable</source>
        <translation>四線啟用</translation>
    </message>
    <message>
        <source>basic table: %1 double words in read-outs of this part, %2 here</source>
        <translation>基本表：此型號的讀出資料有 %1 個雙字，此處有 %2 個</translation>
    </message>
    <message>
        <source>4-4-4 read: in read-outs of this part, but not here</source>
        <translation>4-4-4 讀取：此型號的讀出資料中有，此處沒有</translation>
    </message>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 不是數字。</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3 are allowed.</source>
        <translation>%1 超出範圍：允許 %2 到 %3。</translation>
    </message>
    <message>
        <source>%1 is more than 32Gb.</source>
        <translation>%1 大於 32Gb。</translation>
    </message>
    <message>
        <source>%1 is not a density such as 128Mb.</source>
        <translation>%1 不是像 128Mb 這樣的容量。</translation>
    </message>
    <message>
        <source>%1 is neither an erase command such as %2 nor %3.</source>
        <translation>%1 既不是像 %2 這樣的抹除指令，也不是%3。</translation>
    </message>
    <message>
        <source>%1 is not a power of two.</source>
        <translation>%1 不是 2 的冪。</translation>
    </message>
    <message>
        <source>There is no value %1.</source>
        <translation>沒有值 %1。</translation>
    </message>
    <message>
        <source>The value %1 is missing: enter it.</source>
        <translation>缺少值 %1：請輸入。</translation>
    </message>
    <message>
        <source>The number of dies, %1, does not divide the density.</source>
        <translation>晶粒數 %1 不能整除容量。</translation>
    </message>
    <message>
        <source>The erase command %1 does not divide the density.</source>
        <translation>抹除指令 %1 不能整除容量。</translation>
    </message>
    <message>
        <source>The density %1 (%2) is not what the ID usually stands for, which is %3.</source>
        <translation>容量 %1（%2）與該 ID 通常表示的 %3 不符。</translation>
    </message>
    <message>
        <source>SFDP DW2 says a density that no device can have: %1.</source>
        <translation>SFDP DW2 給出的容量任何元件都不可能有：%1。</translation>
    </message>
    <message>
        <source>A device has at most %1 single-I/O dummy clocks: it gets these, and its flow has %2.</source>
        <translation>元件最多有 %1 個單線 I/O 空時脈週期：採用此值，其流程為 %2 個。</translation>
    </message>
    <message>
        <source>The chip has a table of the maker %1, and its ID is of the maker %2.</source>
        <translation>晶片有製造商 %1 的表，而其 ID 屬於製造商 %2。</translation>
    </message>
    <message>
        <source>No listed part tells what the maker&apos;s parts have in common: usual commands are assumed.</source>
        <translation>清單中沒有型號能說明該製造商型號的共同點：假定採用常用指令。</translation>
    </message>
    <message>
        <source>Several listed parts have this ID: %1.</source>
        <translation>多個已列型號具有此 ID：%1。</translation>
    </message>
    <message>
        <source>The commands have four address bytes, and nothing enters 4-byte addressing.</source>
        <translation>指令有四個位址位元組，但沒有進入 4 位元組定址的方式。</translation>
    </message>
    <message>
        <source>The commands have three address bytes, and the device is in 4-byte addressing.</source>
        <translation>指令有三個位址位元組，而元件處於 4 位元組定址。</translation>
    </message>
    <message>
        <source>Three address bytes do not reach all of %1.</source>
        <translation>三個位址位元組無法存取全部 %1。</translation>
    </message>
    <message>
        <source>SFDP DW1 lists three address bytes alone, which do not reach all of %1: four are taken.</source>
        <translation>SFDP DW1 只列出三個位址位元組，無法存取全部 %1：採用四個。</translation>
    </message>
    <message>
        <source>SFDP DW16 lists every way into 4-byte addressing, and SFDP DW1 three address bytes: DW16 is ignored.</source>
        <translation>SFDP DW16 列出所有進入 4 位元組定址的方式，而 SFDP DW1 為三個位址位元組：忽略 DW16。</translation>
    </message>
    <message>
        <source>SFDP DW16 lists no way into 4-byte addressing that a flow can take: %1 is taken.</source>
        <translation>SFDP DW16 未列出流程可用的進入 4 位元組定址的方式：採用 %1。</translation>
    </message>
    <message>
        <source>SFDP has no page size: %1 is taken (%2).</source>
        <translation>SFDP 沒有頁大小：採用 %1（%2）。</translation>
    </message>
    <message>
        <source>SFDP DW11 has a page size that no flow can have: %1 is taken (%2).</source>
        <translation>SFDP DW11 的頁大小任何流程都不能使用：採用 %1（%2）。</translation>
    </message>
    <message>
        <source>SFDP DW15 says with a reserved value how quad is enabled: look it up and enter it.</source>
        <translation>SFDP DW15 以保留值表示四線啟用方式：請查閱後輸入。</translation>
    </message>
    <message>
        <source>SFDP does not say how quad is enabled: %1 is taken (%2).</source>
        <translation>SFDP 未說明四線啟用方式：採用 %1（%2）。</translation>
    </message>
    <message>
        <source>SFDP lists no read on four lines: the quad-I/O flow uses one.</source>
        <translation>SFDP 未列出四線讀取：四線 I/O 流程會使用它。</translation>
    </message>
    <message>
        <source>No erase command serves the whole part: the chip is erased at once.</source>
        <translation>沒有適用於整個型號的抹除指令：將一次抹除整個晶片。</translation>
    </message>
    <message>
        <source>The four bytes of each double word are in reverse order.</source>
        <translation>每個雙字的四個位元組順序相反。</translation>
    </message>
    <message>
        <source>The bytes do not begin with the signature &quot;SFDP&quot;.</source>
        <translation>位元組不以簽章「SFDP」開頭。</translation>
    </message>
    <message>
        <source>The signature &quot;SFDP&quot; is at %1 and not at the start: bytes were added before it.</source>
        <translation>簽章「SFDP」在 %1 處而不在開頭：其前面加入了位元組。</translation>
    </message>
    <message>
        <source>The read-out ends within the SFDP header.</source>
        <translation>讀出資料在 SFDP 標頭內結束。</translation>
    </message>
    <message>
        <source>SFDP revision %1 is unknown: revisions 1.x can be read.</source>
        <translation>未知的 SFDP 修訂版 %1：可讀取修訂版 1.x。</translation>
    </message>
    <message>
        <source>%1 has the unknown revision %2: it is not read.</source>
        <translation>%1的修訂版 %2 未知：不讀取。</translation>
    </message>
    <message>
        <source>There are %1 headers of %2: the one of revision %3 is taken.</source>
        <translation>%2有 %1 個標頭：採用修訂版 %3 的標頭。</translation>
    </message>
    <message>
        <source>The read-out ends within the parameter headers: %1 of %2 are there.</source>
        <translation>讀出資料在參數標頭內結束：%2 個中有 %1 個。</translation>
    </message>
    <message>
        <source>A table begins at %1: there is room for %2 parameter headers, not for %3.</source>
        <translation>有一個表從 %1 開始：只能容納 %2 個參數標頭，而不是 %3 個。</translation>
    </message>
    <message>
        <source>The parameter header at %1 is blank.</source>
        <translation>%1 處的參數標頭為空。</translation>
    </message>
    <message>
        <source>%1 begins at %2, within the headers: it is not read.</source>
        <translation>%1從標頭內的 %2 開始：不讀取。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1為空。</translation>
    </message>
    <message>
        <source>%1 is not in the read-out: it begins at %2, and the read-out ends at %3.</source>
        <translation>%1不在讀出資料中：它從 %2 開始，而資料在 %3 結束。</translation>
    </message>
    <message>
        <source>The read-out ends within %1: %2 of %3 double words are there.</source>
        <translation>讀出資料在%1內結束：%3 個雙字中有 %2 個。</translation>
    </message>
    <message>
        <source>%1 begins at %2, which is not a multiple of 4.</source>
        <translation>%1從 %2 開始，它不是 4 的倍數。</translation>
    </message>
    <message>
        <source>%1 and %2 overlap.</source>
        <translation>%1與%2重疊。</translation>
    </message>
    <message>
        <source>The bytes at %1 are in no table: they are not read.</source>
        <translation>%1 處的位元組不在任何表中：不讀取。</translation>
    </message>
    <message>
        <source>There is no basic table.</source>
        <translation>沒有基本表。</translation>
    </message>
    <message>
        <source>The basic table is blank.</source>
        <translation>基本表為空。</translation>
    </message>
    <message>
        <source>The basic table has %1 double words: %2 belong to its revision %3.</source>
        <translation>基本表有 %1 個雙字：修訂版 %3 應有 %2 個。</translation>
    </message>
    <message>
        <source>SFDP DW%1 has zeros where every part has ones: bytes may be missing or shifted.</source>
        <translation>SFDP DW%1 中所有型號都為 1 的位元是 0：位元組可能缺失或移位。</translation>
    </message>
    <message>
        <source>SFDP DW2 says no density that a part can have: %1.</source>
        <translation>SFDP DW2 給出的不是型號可能有的容量：%1。</translation>
    </message>
    <message>
        <source>SFDP DW1 says with a reserved value how many address bytes there are.</source>
        <translation>SFDP DW1 以保留值表示位址位元組數。</translation>
    </message>
    <message>
        <source>SFDP DW%1 lists the %2 read, and DW%3 has no command for it.</source>
        <translation>SFDP DW%1 列出 %2 讀取，而 DW%3 沒有其指令。</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 has no command: it is left out.</source>
        <translation>SFDP DW%1：抹除類型 %2 沒有指令：將其略去。</translation>
    </message>
    <message>
        <source>SFDP DW%1: erase type %2 erases 2^%3 bytes, which is too much: it is left out.</source>
        <translation>SFDP DW%1：抹除類型 %2 抹除 2^%3 位元組，過大：將其略去。</translation>
    </message>
    <message>
        <source>SFDP DW1 erases 4 KiB by %1, which no erase type does.</source>
        <translation>SFDP DW1 以 %1 抹除 4 KiB，而沒有抹除類型這樣做。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions is blank.</source>
        <translation>4 位元組指令表為空。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions has no erase commands.</source>
        <translation>4 位元組指令表沒有抹除指令。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1, which the basic table does not have.</source>
        <translation>4 位元組指令表列出抹除類型 %1，而基本表沒有。</translation>
    </message>
    <message>
        <source>The table of 4-byte instructions lists erase type %1 and has no command for it.</source>
        <translation>4 位元組指令表列出抹除類型 %1，但沒有其指令。</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 come to %2 bytes, and the part has %3.</source>
        <translation>磁區對應 %1 的磁區共 %2 位元組，而型號有 %3 位元組。</translation>
    </message>
    <message>
        <source>The sectors of sector map %1 are erased by types that the basic table does not have.</source>
        <translation>磁區對應 %1 的磁區使用基本表沒有的類型抹除。</translation>
    </message>
    <message>
        <source>The sector map has no end.</source>
        <translation>磁區對應沒有結尾。</translation>
    </message>
    <message>
        <source>the basic table</source>
        <translation>基本表</translation>
    </message>
    <message>
        <source>the sector map</source>
        <translation>磁區對應</translation>
    </message>
    <message>
        <source>the table of 4-byte instructions</source>
        <translation>4 位元組指令表</translation>
    </message>
    <message>
        <source>the table %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 was replaced by another one while it was in use. Nothing was changed: look at the devices that are there now, then try again.</source>
        <translation>伺服器 %2 上的資料庫 %1 在使用期間被另一個資料庫取代。未作任何變更：請檢視現有元件，然後重試。</translation>
    </message>
    <message>
        <source>The database %1 on the server %2 is another one now.</source>
        <translation>伺服器 %2 上的資料庫 %1 現在是另一個資料庫。</translation>
    </message>
    <message>
        <source>the certificates %1 are not a file</source>
        <translation>憑證 %1 不是檔案</translation>
    </message>
    <message>
        <source>no reason</source>
        <translation>無原因</translation>
    </message>
    <message>
        <source>the connection is closed</source>
        <translation>連線已關閉</translation>
    </message>
    <message>
        <source>The server does not copy.</source>
        <translation>伺服器不進行複製。</translation>
    </message>
    <message>
        <source>%1 is not a setting</source>
        <translation>%1 不是設定</translation>
    </message>
    <message>
        <source>passwords do not belong into it: put them into the file .pgpass in your home directory</source>
        <translation>密碼不應放在其中：請放入家目錄中的檔案 .pgpass</translation>
    </message>
    <message>
        <source>%1 is not a setting. There are: %2</source>
        <translation>%1 不是設定。可用設定：%2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 出現兩次</translation>
    </message>
    <message>
        <source>%1 cannot be %2</source>
        <translation>%1 不能為 %2</translation>
    </message>
    <message>
        <source>it does not begin with %1</source>
        <translation>它不以 %1 開頭</translation>
    </message>
    <message>
        <source>it has no settings</source>
        <translation>它沒有設定</translation>
    </message>
    <message>
        <source>it names too many hosts</source>
        <translation>主機過多</translation>
    </message>
    <message>
        <source>&quot;port&quot; must be one for all hosts, or one for each</source>
        <translation>「port」必須是所有主機共用一個，或每個主機一個</translation>
    </message>
    <message>
        <source>it does not say which &quot;database&quot; is meant</source>
        <translation>未指定是哪個「database」</translation>
    </message>
    <message>
        <source>The settings of the server cannot be used: %1.</source>
        <translation>無法使用伺服器的設定：%1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be used: %2.</source>
        <translation>無法使用檔案 %1：%2。</translation>
    </message>
    <message>
        <source>The directory has the database %1: name the server in another directory, and copy the records there with &quot;gfpdb copy&quot;.</source>
        <translation>該目錄有資料庫 %1：請在另一目錄中指定伺服器，並以「gfpdb copy」將記錄複製到那裡。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>無法寫入檔案 %1：%2。</translation>
    </message>
    <message>
        <source>The database cannot keep %1 of %2: it is not a text in UTF-8, or has the character NUL.</source>
        <translation>資料庫無法儲存 %2 的 %1：它不是 UTF-8 文字，或含有 NUL 字元。</translation>
    </message>
    <message>
        <source>The device %1 is being changed by another program: try again.</source>
        <translation>元件 %1 正被其他程式變更：請重試。</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>匯入已取消。</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>它不是一般檔案</translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>它大於 %1</translation>
    </message>
    <message>
        <source>The command is on four lines, and a write of the status registers before it clears the quad-enable bit.</source>
        <translation>此命令使用四線，但之前對狀態暫存器的寫入清除了 Quad Enable 位元。</translation>
    </message>
</context>
</TS>
