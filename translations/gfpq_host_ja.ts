<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>別の名前で(&amp;A):</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>新しい名前</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>テンプレート「%1」は %2 までの内容に戻ります (状態 %3)。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>デバイス「%1」は %2 までの内容に戻ります (状態 %3)。</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>元に戻す(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>置き換える; 現在のものは履歴に入ります(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>元の名前で(&amp;U)</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>現在の「%1」は %2 に保存されました。</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>現在の「%1」は %2 に %3 によって保存されました。</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>現在はデバイスがこの名前です。テンプレートはデバイスと同じ名前にできません: 別の名前を付けてください。</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>現在はテンプレートがこの名前です。デバイスはテンプレートと同じ名前にできません: 別の名前を付けてください。</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>新しい名前を入力してください。</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF 文書 (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 画像 (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>フローチャートの保存</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>ファイル %1 に書き込めません: %2</translation>
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
        <translation>相違はありません。</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>相違: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>相違のみ(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>前の相違(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>次の相違(&amp;N)</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>差分としてコピー(&amp;D)</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: 「%2」と「%3」</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>相違あり</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>左側のみ</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>右側のみ</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>同じ</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>エミュレートされたチップ</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>ネットワーク (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>シリアル回線 (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>検出(&amp;T)</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>接続(&amp;N):</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>なし: メモリー内</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>内容の保存先(&amp;K):</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>シリアル回線(&amp;E):</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>ボーレート:</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>エミュレートされたチップの内容</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>接続の指定が完全ではありません。</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>プログラマの既定値</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>クロック (Hz):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>クロックが Hz 単位の数値ではありません。</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>ホスト(&amp;O):</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>コピー元(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>新しい名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>複製(&amp;D)</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>コピーするデバイスを選択してください。</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>コンフィギュレーションデバイスのダイアログで開く(&amp;O)</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>複製(&amp;U)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>比較(&amp;C)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>フローチャートを保存(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>「%1」を削除</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>削除、デバイス数: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>ディレクトリを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>最近使ったディレクトリ(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>最新の情報に更新(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>インポート(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>エクスポート(&amp;E)...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>データベース(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>デバイス(&amp;D)</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>デバイスデータベース - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>ディレクトリを開く</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>ディレクトリは使用中ですが、設定に保存できませんでした。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>デバイス「%1」はもう存在しません。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>デバイス「%1」を保存しました。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>デバイス「%1」を削除しました。Ctrl+Z で元に戻せます。</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>削除したデバイス: %1。Ctrl+Z で元に戻せます。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>デバイス「%1」を元に戻しました。</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>元に戻したデバイス: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>フローチャートを %1 に保存しました。</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>レコードのファイル</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>レコード</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>デバイスを削除しています。</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>削除したデバイス: %1/%2。Ctrl+Z で元に戻せます。</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>デバイスを元に戻しています。</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>元に戻したデバイス: %1/%2。Ctrl+Z で続行します。</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>移動先:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>前の相違</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>次の相違</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>何も読み出されていません。チップを読み出すには Examine をオンにします。</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1 を読み出しました。</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>%1 を読み出しました。ファイルと一致しています。</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>%1 を読み出しました。ファイルと異なるバイト数: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>読み出した内容の保存</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>ファイル %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2 (期待値 %3)</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>読み出したバイト</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>ファイル %1 にはエミュレートされたチップの内容が保存されています。別のファイルを選択してください。</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>検出</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>チップの ID は %1 です。この ID を持つデバイス:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>組み込み</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>ユーザーのデバイスでは、初めて表示されるときにフローから読み取られます。まだ読み取られていないものは、並べ替えで最大として扱われます。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>デバイス ID</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電圧</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>アドレスのバイト数</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>ダイ数</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>デバイスファミリー</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更日時</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>変更者</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>名前、メーカー、容量、電圧、またはデバイス ID</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>デバイス: %1 / %2</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>デバイスファミリー(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>コンフィギュレーションモード(&amp;M):</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>コンフィギュレーションデバイス(&amp;D):</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>データベースのディレクトリ(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>コンフィギュレーションデバイス(&amp;C)...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>デバイス「%1」は存在しません。</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>選択したレコード: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>保存済みのすべてのデバイスとテンプレート</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>組み込みのすべてのデバイス</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>1 つの JSON ファイル</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>レコードごとに 1 つの JSON ファイル</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>デバイスの CSV リスト(フローなし)</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>表計算用(再インポート不可)(&amp;S)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>表計算ソフトが数式として実行する文字列にはアポストロフィが付きます。</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>レコード(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>形式(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>出力先(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>ファイルのディレクトリ</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>レコードのファイル</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>次のファイルはすでに存在します:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>置換(&amp;P)</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>レコードの出力先を入力してください。</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>エクスポートするものがありません。</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>エクスポートしたレコード: %1、出力先 %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>次のレコードは読み込めないため、エクスポートされません:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>参照(&amp;W)...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>ファイルがありません。ウィンドウにドロップできます。</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>ファイル(&amp;I):</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>ファイルの開始位置(&amp;B):</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>ファイルを読み込んでいます。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>ファイルを読み込めません: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 バイト、CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>書き込むファイル</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>ファイルではありません。</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>ユーザーガイド(&amp;U)</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>デバイスデータベース(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>プログラミング(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>フロー(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>コマンドライン(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>ガイドがインストールされていません。本来の場所:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>このガイドを表示するプログラムがありません。ビューアーまたはエディターで開いてください:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

ライセンス: MIT
Qt %3

組み込みデバイスはフラッシュ部品に関する公開情報です。部品名は各メーカーに帰属します。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>次の状態と比較(&amp;N)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>前の状態と比較(&amp;P)</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>現在の状態と比較(&amp;C)</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>選択した 2 つの状態を比較(&amp;S)</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>変更日時</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>この状態は別の状態に置き換えられました。</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>この状態は削除されました。</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>この状態は削除されましたが、置き換えられなかったため元に戻されました。</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
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
        <translation>元に戻す(&amp;B)...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>デバイスとテンプレート</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>名前(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>種類(&amp;K):</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>状態: %1、検索中...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>状態: %1 を超える</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>状態: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>これより前の状態はありません。</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>これより後の状態はありません: 削除または名前変更されました。</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>現在の状態はありません: 削除または名前変更されました。</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>状態が履歴から削除されました。</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>インポート: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>ファイルのとおり</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>内容の異なるレコードを置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>デバイスファミリー(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>コンフィギュレーションモード(&amp;M):</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>インポート(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>比較(&amp;C)...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>ファイルを読み込んでいます。</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>問題がある間は何もインポートされません。</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>インポートするものがありません。</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>ファイル内</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>レコードを保存しています。</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>何もインポートされませんでした: %1
プレビューを作成し直しました。</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>%1 にインポートしました。新規: %2、置換: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>何もインポートされませんでした: キャンセルされました。</translation>
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
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>相違あり、対象外</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>既存</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: 相違あり</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: 保存済み %2、ファイル %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>相違: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>レコード</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備考</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>ダイアログモジュールが見つかりませんでした。検索した場所:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>ダイアログモジュール %1 は読み込まれません: 誰でも %2 を変更できます。</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>ダイアログモジュール %1 を読み込めません:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>ダイアログモジュール %1 に関数「%2」がありません。</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>新しいデバイス</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>チップの SFDP データ</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>新しいデバイス</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>新しいデバイス: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>警告(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>この ID を持つ登録済みの部品(&amp;L):</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>デバイスを作成(&amp;D)</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>読み出したデータを保存(&amp;R)...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>相違なし</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>読み出したデータを保存</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>入力により、ほかの値または警告が変わりました。確認してからデバイスを作成してください。</translation>
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
        <translation>ファイルの範囲</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>デバイス全体</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>アドレスと長さ</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>範囲(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>アドレス(&amp;A):</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>長さ:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>デバイスファミリー(&amp;F):</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>コンフィギュレーションモード(&amp;M):</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>コンフィギュレーションデバイス(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>検出(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>ファイルを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>フローを試す(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>キャンセル(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>チップから新しいデバイスを作成(&amp;N)...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>SFDP ファイルから新しいデバイスを作成(&amp;F)...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>複製(&amp;U)...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>デバイスデータベース(&amp;B)...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>フローチャートを保存(&amp;H)...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>トレース</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>データ</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>プログラマ(&amp;P)</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>開始できません: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>ファイルの開始位置が数値ではありません。</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>アドレスまたは長さが数値ではありません。</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>検出できませんでした: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>チップの ID は %1 です。</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>ID %1 のデバイスはありません。</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>実行をキャンセルしています。すぐに停止すると、チップの状態は不明になります。</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>実行中です。キャンセルしてウィンドウを閉じますか?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>すぐに停止</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>実行をキャンセル</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>待つ</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>デバイス「%1」を保存しました。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>デバイス「%1」が存在しないか、ここで選べないファミリーまたはモードのものです。</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>フローチャートを保存できません: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>フローチャートを %1 に保存しました。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>ファイル %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 はファイルではありません。</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>ファイル %1 は %2 バイトを超えており、SFDP データではありません。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>ファイル %1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>組み込みデバイス</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>独自のデバイス</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>クアッド I/O のフロー</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>シングル I/O のフロー</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>フローを読み込めません。</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>ファイル %1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1、状態 %2 (%3 まで)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1、現在</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>デバイス「%1」はすでに別のプログラムにより削除されています。</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>履歴にデバイス「%1」はもうありません。</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>実行の進行状況</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>フローを試す(&amp;Y)</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>エミュレートされたチップを消去、書き込み、ベリファイします。ハードウェアは不要で、使用もしません。</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>キャンセル(&amp;L)</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>実行をキャンセルしています。</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 / %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>操作が選択されていません。</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>ファイルが選択されていません。</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>デバイスが選択されていません。</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>デバイス「%1」は存在しません。</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>ファイル %1 を読み込めません。</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>ファイル %1 は空です。</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>ファイルには %2 から %1 バイトが必要ですが、デバイスは %3 バイトです。</translation>
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
        <translation>%1 で失敗</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>%1、アクション %2「%3」で失敗</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>停止しました。チップの状態は不明です。</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>接続が失われました。チップの状態は不明です。</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>合格。ただし、一部を保存できませんでした</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>合格。ただし、実際のチップでは拒否または誤認されるコマンドがあります。ログを参照してください</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>開始できません: ログを参照してください</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>テストパターン</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>別のデータで満たされたエミュレートされたチップで %1 のフローを試します</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>内容: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>選択したデバイスとは別のチップの可能性があるため、以後は何も送信していません。</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>チップからの注意: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (コマンド %2 個、%3 秒)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>セクター全体が消去されます。範囲外の次のバイトも消去されます:

%1

消去しますか?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1 (接続 %2)</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 バイト)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1、%2 クロック</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
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
        <translation>アクション</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>ライン</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>期待値</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>すべての操作</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>コマンドの対象:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>前回の実行のコマンド</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>コマンド %1 個</translation>
    </message>
</context>
</TS>
