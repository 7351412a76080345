<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>使用其他名稱(&amp;A)：</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新名稱</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>範本「%1」將還原為 %2 之前的內容（狀態 %3）。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>元件「%1」將還原為 %2 之前的內容（狀態 %3）。</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>還原(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>取代；目前狀態進入歷史記錄(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>使用原名稱(&amp;U)</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>目前的「%1」儲存於 %2。</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>目前的「%1」由 %3 儲存於 %2。</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>現在有元件使用此名稱。範本不能與元件同名：請另取名稱。</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>現在有範本使用此名稱。元件不能與範本同名：請另取名稱。</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>請輸入新名稱。</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF 文件 (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 圖片 (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>儲存流程圖</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>無法寫入檔案 %1：%2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>沒有差異。</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>差異：%1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>僅差異(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>上一處差異(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>下一處差異(&amp;N)</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>複製為 diff(&amp;D)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1：「%2」和「%3」</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>僅左側</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>僅右側</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>相同</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>模擬晶片</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>網路 (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>序列埠 (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>偵測(&amp;T)</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>連線(&amp;N)：</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>無：在記憶體中</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>內容保存於(&amp;K)：</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>連接埠：</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>序列埠(&amp;E)：</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>鮑率：</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>模擬晶片的內容</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>連線資訊不完整。</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>燒錄器自身的時脈</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>時脈 (Hz)：</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>時脈不是以 Hz 為單位的數字。</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>主機(&amp;O)：</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>複製元件</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>複製自(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>新名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>複製(&amp;D)</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>請選擇要複製的元件。</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>在組態元件對話方塊中開啟(&amp;O)</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>複製(&amp;U)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>比較(&amp;C)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>儲存流程圖(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全選(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>尋找(&amp;F)</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>刪除「%1」</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>刪除，元件：%1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>開啟目錄(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>最近的目錄(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>重新整理(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>匯入(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>匯出(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>元件</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>資料庫(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>元件(&amp;D)</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>元件資料庫 - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>開啟目錄</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>現在使用此目錄，但未能將它儲存到設定中。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>元件「%1」已不存在。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>元件「%1」已儲存。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>已刪除元件「%1」。按 Ctrl+Z 可還原。</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>已刪除元件：%1。按 Ctrl+Z 可還原。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>元件「%1」已還原。</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>已還原元件：%1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歷史記錄</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>流程圖已儲存到 %1。</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>記錄檔案</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>正在刪除元件。</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>已刪除元件：%1/%2。按 Ctrl+Z 可還原。</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>正在還原元件。</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>已還原元件：%1/%2。按 Ctrl+Z 繼續。</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>移至：</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>上一個差異</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>下一個差異</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存新檔...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>未讀取任何內容。要讀取晶片，請勾選 Examine。</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>已讀取 %1。</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>已讀取 %1，與檔案一致。</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>已讀取 %1。與檔案不同的位元組數：%2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>儲存讀取的內容</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>無法寫入檔案 %1：%2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1：%2，預期 %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>讀取的位元組</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>檔案 %1 保存著模擬晶片的內容。請選擇其他檔案。</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>偵測</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>晶片的 ID 是 %1。具有此 ID 的元件：</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>內建</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>自有</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>自有元件的位址位元組數在首次顯示時從流程讀取。尚未讀取的按最大值排序。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>製造商</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>元件 ID</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>位址位元組數</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>晶粒數</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>元件系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>變更時間</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>變更者</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>尋找(&amp;F)：</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>名稱、製造商、容量、電壓或元件 ID</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>元件</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>元件：%1 / %2</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>元件系列(&amp;F)：</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>組態模式(&amp;M)：</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>組態元件(&amp;D)：</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>資料庫目錄(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>組態元件(&amp;C)...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>元件「%1」不存在。</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>所選記錄：%1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>所有已儲存的元件和範本</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>所有內建元件</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>一個 JSON 檔案</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>每筆記錄一個 JSON 檔案</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>元件的 CSV 清單，不含流程</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>用於試算表（無法再次匯入）(&amp;S)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>試算表會當作公式執行的文字前會加上撇號。</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>瀏覽(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>記錄(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>匯出到(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>匯出(&amp;E)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>檔案的目錄</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>記錄的檔案</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>下列檔案已存在：</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>取代(&amp;P)</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>請輸入記錄的匯出位置。</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>沒有可匯出的內容。</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>已匯出記錄：%1，位置：%2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>下列記錄無法讀取，未匯出：</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>瀏覽(&amp;W)...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>沒有檔案。可將檔案拖放到視窗上。</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>檔案(&amp;I)：</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>檔案起始於(&amp;B)：</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>正在讀取檔案。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>無法讀取檔案：%1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 位元組，CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>要燒錄的檔案</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>它不是檔案。</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>使用者指南(&amp;U)</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>元件資料庫(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>燒錄(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>流程(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>命令列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>關於(&amp;A)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>未安裝此指南。其位置應為：
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>沒有程式可以顯示此指南。請用檢視器或編輯器開啟：
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

授權條款：MIT
Qt %3

內建元件是有關快閃記憶體型號的公開資料。型號名稱屬於其製造商。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>與下一狀態比較(&amp;N)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>與上一狀態比較(&amp;P)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>與目前狀態比較(&amp;C)</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>比較所選的兩個狀態(&amp;S)</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>變更時間</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>已放回</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>此狀態已被另一狀態取代。</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>此狀態已被刪除。</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>此狀態曾被刪除，因無法取代而放回。</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>範本</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>元件</translation>
    </message>
    <message>
        <source>When</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>User</source>
        <translation>使用者</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>編號</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>比較(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>還原(&amp;B)...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>元件和範本</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>元件</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>範本</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歷史記錄</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>名稱(&amp;M)：</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>使用者(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>類型(&amp;K)：</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>狀態：%1，正在搜尋...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>狀態：超過 %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>狀態：%1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>此狀態之前沒有其他狀態。</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>此狀態之後沒有其他狀態：已被刪除或重新命名。</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>沒有目前狀態：已被刪除或重新命名。</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>一個狀態已從歷史記錄中移除。</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>匯入：%1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>與檔案中相同</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>取代不同的記錄(&amp;R)</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>元件系列(&amp;F)：</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>組態模式(&amp;M)：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>匯入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>比較(&amp;C)...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>正在讀取檔案。</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>存在問題時不會匯入任何內容。</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>沒有可匯入的內容。</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>檔案中</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>正在儲存記錄。</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>未匯入任何內容：%1
已重新產生預覽。</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>已匯入到 %1。新增：%2，取代：%3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>未匯入任何內容：您已取消匯入。</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>將被取代</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>不同，不匯入</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1：不同</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1：已儲存 %2，檔案中 %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>不同之處：%1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備註</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>找不到對話方塊模組。已搜尋：
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>未載入對話方塊模組 %1：任何人都可以變更 %2。</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>無法載入對話方塊模組 %1：
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>對話方塊模組 %1 沒有函式「%2」。</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>新元件</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>晶片的 SFDP 資料</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>新元件</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>新元件：%1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>警告(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>具有此 ID 的已列型號(&amp;L)：</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>建立元件(&amp;D)</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>儲存讀出資料(&amp;R)...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>無差異</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>儲存讀出資料</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>輸入的內容改變了其他值或警告。請先查看，然後再建立元件。</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DRAFT</name>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
</context>
<context>
    <name>ORDER_PANEL</name>
    <message>
        <source>What the file covers</source>
        <translation>檔案涵蓋的部分</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>整個元件</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>位址和長度</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>範圍(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>位址(&amp;A)：</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>長度：</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>元件系列(&amp;F)：</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>組態模式(&amp;M)：</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>組態元件(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>偵測(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>開啟檔案(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>試跑流程(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>取消(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>從晶片新增元件(&amp;N)...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>從 SFDP 檔案新增元件(&amp;F)...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>複製元件(&amp;U)...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>元件資料庫(&amp;B)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>儲存流程圖(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>元件</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>記錄</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>追蹤</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>資料</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>燒錄器(&amp;P)</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>未開始：%1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>檔案起始位置不是數字。</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>位址或長度不是數字。</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>未偵測到任何元件：%1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>晶片的 ID 是 %1。</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>沒有 ID 為 %1 的元件。</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>正在取消執行。如果立即停止，晶片的狀態將不明。</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>正在執行。要取消並關閉視窗嗎？</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>立即停止</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>取消執行</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>繼續執行</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>元件「%1」已儲存。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>元件「%1」不存在，或其系列或模式在此處不可選。</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>無法儲存流程圖：%1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>流程圖已儲存到 %1。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>無法讀取檔案 %1：%2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是檔案。</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>檔案 %1 超過 %2 位元組，不是 SFDP 資料。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>無法寫入檔案 %1：%2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>範本</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>內建元件</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>自有元件</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>四線 I/O 流程</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>單線 I/O 流程</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>無法讀取流程。</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>無法寫入檔案 %1：%2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1，狀態 %2（至 %3）</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1，目前</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>元件「%1」已被其他程式刪除。</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>歷史記錄中已沒有元件「%1」。</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>執行進度</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>試跑流程(&amp;Y)</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>抹除、燒錄並驗證一個模擬晶片。不需要也不使用任何硬體。</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>取消(&amp;L)</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>正在取消執行。</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1：%2 / %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩餘 %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>未勾選任何操作。</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>未選擇檔案。</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>未選擇元件。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>元件「%1」不存在。</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>無法讀取檔案 %1。</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>檔案 %1 是空的。</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>檔案從 %2 起需要 %1 位元組，而元件有 %3 位元組。</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>在 %1 失敗</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>在 %1 的動作 %2「%3」失敗</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>已停止。晶片的狀態不明。</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>連線已中斷。晶片的狀態不明。</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>通過，但未能儲存全部內容</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>通過，但真實晶片會拒絕或誤讀某些命令：請查看記錄</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>通過</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>未開始：請查看記錄</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>測試圖樣</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>在寫滿其他資料的模擬晶片上試跑 %1 的流程</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>內容：%1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>未再傳送任何內容，因為此晶片可能不是所選元件。</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>晶片的提示：%1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 個命令，%3 秒)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>將抹除整個磁區。範圍之外的下列位元組也會被抹除：

%1

要抹除嗎？</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1，連線 %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 位元組)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1，%2 個時脈</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>時間 (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>線路</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已傳送</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>預期</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>所有操作</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>命令範圍：</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>上次執行的命令</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 個命令</translation>
    </message>
</context>
</TS>
