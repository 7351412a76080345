<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>BRING_BACK_DIALOG</name>
    <message>
        <source>Under &amp;another name:</source>
        <translation>Com &amp;outro nome:</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nome novo</translation>
    </message>
    <message>
        <source>The template &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>O modelo “%1” volta a ser o que era até %2 (estado %3).</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; becomes again what it was until %2 (state %3).</source>
        <translation>O dispositivo “%1” volta a ser o que era até %2 (estado %3).</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Replace it; it goes into the history</source>
        <translation>&amp;Substituir; o atual vai para o histórico</translation>
    </message>
    <message>
        <source>&amp;Under its name</source>
        <translation>Com o se&amp;u nome</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2.</source>
        <translation>O “%1” atual foi salvo em %2.</translation>
    </message>
    <message>
        <source>The current &quot;%1&quot; was saved on %2 by %3.</source>
        <translation>O “%1” atual foi salvo em %2 por %3.</translation>
    </message>
    <message>
        <source>A device has this name now. A template cannot have the name of a device: give it another one.</source>
        <translation>Agora um dispositivo tem este nome. Um modelo não pode ter o nome de um dispositivo: dê-lhe outro.</translation>
    </message>
    <message>
        <source>A template has this name now. A device cannot have the name of a template: give it another one.</source>
        <translation>Agora um modelo tem este nome. Um dispositivo não pode ter o nome de um modelo: dê-lhe outro.</translation>
    </message>
    <message>
        <source>Enter the new name.</source>
        <translation>Digite o nome novo.</translation>
    </message>
</context>
<context>
    <name>CHART_SAVER</name>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>Imagem SVG (*.svg)</translation>
    </message>
    <message>
        <source>Save Flow Charts</source>
        <translation>Salvar fluxogramas</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>O arquivo %1 não pode ser gravado: %2</translation>
    </message>
</context>
<context>
    <name>COMPARE_DIALOG</name>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>There are no differences.</source>
        <translation>Não há diferenças.</translation>
    </message>
    <message>
        <source>Differences: %1</source>
        <translation>Diferenças: %1</translation>
    </message>
    <message>
        <source>&amp;Only differences</source>
        <translation>S&amp;ó as diferenças</translation>
    </message>
    <message>
        <source>&amp;Previous Difference</source>
        <translation>Diferença &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next Difference</source>
        <translation>&amp;Próxima diferença</translation>
    </message>
    <message>
        <source>Copy as &amp;Diff</source>
        <translation>Copiar como &amp;diff</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; and &quot;%3&quot;</source>
        <translation>%1: “%2” e “%3”</translation>
    </message>
</context>
<context>
    <name>COMPARE_MODEL</name>
    <message>
        <source>Different</source>
        <translation>Diferente</translation>
    </message>
    <message>
        <source>Only on the left</source>
        <translation>Só à esquerda</translation>
    </message>
    <message>
        <source>Only on the right</source>
        <translation>Só à direita</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>Igual</translation>
    </message>
</context>
<context>
    <name>CONNECTION_PANEL</name>
    <message>
        <source>Emulated chip</source>
        <translation>Chip emulado</translation>
    </message>
    <message>
        <source>Network (serprog)</source>
        <translation>Rede (serprog)</translation>
    </message>
    <message>
        <source>Serial line (serprog)</source>
        <translation>Linha serial (serprog)</translation>
    </message>
    <message>
        <source>De&amp;tect</source>
        <translation>Detecta&amp;r</translation>
    </message>
    <message>
        <source>Co&amp;nnection:</source>
        <translation>&amp;Conexão:</translation>
    </message>
    <message>
        <source>none: in memory</source>
        <translation>nenhum: na memória</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>&amp;Keep contents in:</source>
        <translation>G&amp;uardar conteúdo em:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>S&amp;erial line:</source>
        <translation>&amp;Linha serial:</translation>
    </message>
    <message>
        <source>Baud rate:</source>
        <translation>Taxa de transmissão:</translation>
    </message>
    <message>
        <source>Contents of the Emulated Chip</source>
        <translation>Conteúdo do chip emulado</translation>
    </message>
    <message>
        <source>The connection is not complete.</source>
        <translation>A conexão não está completa.</translation>
    </message>
    <message>
        <source>the programmer&apos;s own</source>
        <translation>o do próprio gravador</translation>
    </message>
    <message>
        <source>Clock (Hz):</source>
        <translation>Clock (Hz):</translation>
    </message>
    <message>
        <source>The clock is not a number of hertz.</source>
        <translation>O clock não é um número de hertz.</translation>
    </message>
    <message>
        <source>H&amp;ost:</source>
        <translation>&amp;Host:</translation>
    </message>
</context>
<context>
    <name>COPY_DIALOG</name>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>&amp;Copy of:</source>
        <translation>&amp;Cópia de:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Nome novo:</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Choose the device to copy.</source>
        <translation>Escolha o dispositivo a copiar.</translation>
    </message>
</context>
<context>
    <name>DATABASE_DEVICE_MENU</name>
    <message>
        <source>&amp;Open in the Configuration Device Dialog</source>
        <translation>&amp;Abrir no diálogo do dispositivo de configuração</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;uplicar...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Comparar...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Salvar fluxo&amp;gramas...</translation>
    </message>
</context>
<context>
    <name>DATABASE_EDIT_MENU</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Localizar</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Excluir “%1”</translation>
    </message>
    <message>
        <source>Delete, devices: %1</source>
        <translation>Excluir, dispositivos: %1</translation>
    </message>
</context>
<context>
    <name>DATABASE_MENU</name>
    <message>
        <source>&amp;Open Directory...</source>
        <translation>A&amp;brir diretório...</translation>
    </message>
    <message>
        <source>&amp;Recent Directories</source>
        <translation>Diretórios &amp;recentes</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>A&amp;tualizar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
</context>
<context>
    <name>DATABASE_WINDOW</name>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Da&amp;tabase</source>
        <translation>Banco de &amp;dados</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>D&amp;ispositivo</translation>
    </message>
    <message>
        <source>Device Database - %1</source>
        <translation>Banco de dados de dispositivos - %1</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir diretório</translation>
    </message>
    <message>
        <source>The directory is used now, but could not be stored in the settings.</source>
        <translation>O diretório está em uso agora, mas não pôde ser salvo nas configurações.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist any more.</source>
        <translation>O dispositivo “%1” não existe mais.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>O dispositivo “%1” foi salvo.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is deleted. Ctrl+Z brings it back.</source>
        <translation>O dispositivo “%1” foi excluído. Ctrl+Z o traz de volta.</translation>
    </message>
    <message>
        <source>Devices deleted: %1. Ctrl+Z brings them back.</source>
        <translation>Dispositivos excluídos: %1. Ctrl+Z os traz de volta.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is back.</source>
        <translation>O dispositivo “%1” está de volta.</translation>
    </message>
    <message>
        <source>Devices brought back: %1</source>
        <translation>Dispositivos trazidos de volta: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Os fluxogramas estão em %1.</translation>
    </message>
    <message>
        <source>Files of Records</source>
        <translation>Arquivos de registros</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Devices are being deleted.</source>
        <translation>Os dispositivos estão sendo excluídos.</translation>
    </message>
    <message>
        <source>Devices deleted: %1 of %2. Ctrl+Z brings them back.</source>
        <translation>Dispositivos excluídos: %1 de %2. Ctrl+Z os traz de volta.</translation>
    </message>
    <message>
        <source>Devices are being brought back.</source>
        <translation>Os dispositivos estão sendo trazidos de volta.</translation>
    </message>
    <message>
        <source>Devices brought back: %1 of %2. Ctrl+Z goes on.</source>
        <translation>Dispositivos trazidos de volta: %1 de %2. Ctrl+Z continua.</translation>
    </message>
</context>
<context>
    <name>DATA_PAGE</name>
    <message>
        <source>Go to:</source>
        <translation>Ir para:</translation>
    </message>
    <message>
        <source>Previous Difference</source>
        <translation>Diferença anterior</translation>
    </message>
    <message>
        <source>Next Difference</source>
        <translation>Próxima diferença</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salvar como...</translation>
    </message>
    <message>
        <source>Nothing was read. Check Examine to read the chip.</source>
        <translation>Nada foi lido. Marque Examine para ler o chip.</translation>
    </message>
    <message>
        <source>%1 was read.</source>
        <translation>%1 foi lido.</translation>
    </message>
    <message>
        <source>%1 was read. It is what the file has.</source>
        <translation>%1 foi lido. É igual ao arquivo.</translation>
    </message>
    <message>
        <source>%1 was read. Bytes that differ from the file: %2</source>
        <translation>%1 foi lido. Bytes diferentes do arquivo: %2</translation>
    </message>
    <message>
        <source>Save What Was Read</source>
        <translation>Salvar o que foi lido</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>O arquivo %1 não pode ser gravado: %2</translation>
    </message>
    <message>
        <source>%1: %2, expected %3</source>
        <translation>%1: %2, esperado %3</translation>
    </message>
    <message>
        <source>Bytes that were read</source>
        <translation>Bytes lidos</translation>
    </message>
    <message>
        <source>The file %1 keeps the contents of the emulated chip. Choose another one.</source>
        <translation>O arquivo %1 guarda o conteúdo do chip emulado. Escolha outro.</translation>
    </message>
</context>
<context>
    <name>DETECTED_DIALOG</name>
    <message>
        <source>Detect</source>
        <translation>Detectar</translation>
    </message>
    <message>
        <source>The chip has the ID %1. Devices with this ID:</source>
        <translation>O chip tem o ID %1. Dispositivos com este ID:</translation>
    </message>
</context>
<context>
    <name>DEVICE_MODEL</name>
    <message>
        <source>all</source>
        <translation>todos</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Integrado</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Próprio</translation>
    </message>
    <message>
        <source>Of own devices they are read from the flows when they are shown for the first time. Those not read yet are sorted as the highest.</source>
        <translation>Nos dispositivos próprios, são lidos dos fluxos quando mostrados pela primeira vez. Os ainda não lidos são ordenados como os maiores.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>ID do dispositivo</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensão</translation>
    </message>
    <message>
        <source>Address bytes</source>
        <translation>Bytes de endereço</translation>
    </message>
    <message>
        <source>Dies</source>
        <translation>Dies</translation>
    </message>
    <message>
        <source>Device family</source>
        <translation>Família de dispositivos</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Alterado por</translation>
    </message>
</context>
<context>
    <name>DEVICE_PAGE</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Localizar:</translation>
    </message>
    <message>
        <source>Name, maker, density, voltage or device ID</source>
        <translation>Nome, fabricante, capacidade, tensão ou ID do dispositivo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>%1 of %2 devices</source>
        <translation>%1 de %2 dispositivos</translation>
    </message>
</context>
<context>
    <name>DEVICE_PANEL</name>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Família de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modo de configuração:</translation>
    </message>
    <message>
        <source>Configuration &amp;device:</source>
        <translation>Di&amp;spositivo de configuração:</translation>
    </message>
    <message>
        <source>Database di&amp;rectory:</source>
        <translation>Diretório do &amp;banco de dados:</translation>
    </message>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo de configuração...</translation>
    </message>
</context>
<context>
    <name>DEVICE_PROGRESS</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DEVICE_SOURCES</name>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>O dispositivo “%1” não existe.</translation>
    </message>
</context>
<context>
    <name>EXPORT_DIALOG</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Selected records: %1</source>
        <translation>Registros selecionados: %1</translation>
    </message>
    <message>
        <source>All stored devices and templates</source>
        <translation>Todos os dispositivos e modelos salvos</translation>
    </message>
    <message>
        <source>All built-in devices</source>
        <translation>Todos os dispositivos internos</translation>
    </message>
    <message>
        <source>One JSON file</source>
        <translation>Um único arquivo JSON</translation>
    </message>
    <message>
        <source>One JSON file for each record</source>
        <translation>Um arquivo JSON para cada registro</translation>
    </message>
    <message>
        <source>CSV list of the devices, without flows</source>
        <translation>Lista CSV dos dispositivos, sem fluxos</translation>
    </message>
    <message>
        <source>For a &amp;spreadsheet (cannot be imported again)</source>
        <translation>Para uma p&amp;lanilha (não pode ser importada de novo)</translation>
    </message>
    <message>
        <source>Texts that a spreadsheet would run as formulas get an apostrophe.</source>
        <translation>Textos que uma planilha executaria como fórmulas recebem um apóstrofo.</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Procurar...</translation>
    </message>
    <message>
        <source>&amp;Records:</source>
        <translation>&amp;Registros:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Destino:</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Directory for the Files</source>
        <translation>Diretório para os arquivos</translation>
    </message>
    <message>
        <source>File for the Records</source>
        <translation>Arquivo para os registros</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Estes arquivos já existem:</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>&amp;Substituir</translation>
    </message>
    <message>
        <source>Enter where the records go.</source>
        <translation>Informe o destino dos registros.</translation>
    </message>
    <message>
        <source>There is nothing to export.</source>
        <translation>Não há nada para exportar.</translation>
    </message>
    <message>
        <source>Exported records: %1, into %2</source>
        <translation>Registros exportados: %1, em %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>These cannot be read, and are not exported:</source>
        <translation>Estes não podem ser lidos e não são exportados:</translation>
    </message>
</context>
<context>
    <name>FILE_PANEL</name>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>&amp;Procurar...</translation>
    </message>
    <message>
        <source>No file. A file can be dropped on the window.</source>
        <translation>Nenhum arquivo. É possível soltar um na janela.</translation>
    </message>
    <message>
        <source>F&amp;ile:</source>
        <translation>Ar&amp;quivo:</translation>
    </message>
    <message>
        <source>File &amp;begins at:</source>
        <translation>&amp;O arquivo começa em:</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>O arquivo está sendo lido.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>O arquivo não pode ser lido: %1</translation>
    </message>
    <message>
        <source>%1 bytes, CRC-32 %2</source>
        <translation>%1 bytes, CRC-32 %2</translation>
    </message>
    <message>
        <source>File to Program</source>
        <translation>Arquivo a programar</translation>
    </message>
</context>
<context>
    <name>FILE_SUMMARY</name>
    <message>
        <source>It is not a file.</source>
        <translation>Não é um arquivo.</translation>
    </message>
</context>
<context>
    <name>HELP_MENU</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guia do usuário</translation>
    </message>
    <message>
        <source>Device &amp;Database</source>
        <translation>Banco de &amp;dados de dispositivos</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programação</translation>
    </message>
    <message>
        <source>&amp;Flows</source>
        <translation>&amp;Fluxos</translation>
    </message>
    <message>
        <source>&amp;Command Line</source>
        <translation>&amp;Linha de comando</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>The guide is not installed. It would be here:
%1</source>
        <translation>O guia não está instalado. Ele estaria aqui:
%1</translation>
    </message>
    <message>
        <source>No program shows this guide. Open it with a viewer or an editor:
%1</source>
        <translation>Nenhum programa mostra este guia. Abra-o com um visualizador ou editor:
%1</translation>
    </message>
    <message>
        <source>%1 %2

Licence: MIT
Qt %3

The built-in devices are public facts about flash parts. The names of parts belong to their makers.</source>
        <translation>%1 %2

Licença: MIT
Qt %3

Os dispositivos integrados são dados públicos sobre componentes flash. Os nomes pertencem aos seus fabricantes.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
</context>
<context>
    <name>HISTORY_MENU</name>
    <message>
        <source>Compare with the &amp;Next State</source>
        <translation>Comparar com o &amp;próximo estado</translation>
    </message>
    <message>
        <source>Compare with the &amp;Previous State</source>
        <translation>Comparar com o estado &amp;anterior</translation>
    </message>
    <message>
        <source>Compare with the &amp;Current State</source>
        <translation>Comparar com o estado a&amp;tual</translation>
    </message>
    <message>
        <source>Compare the Two &amp;Selected States</source>
        <translation>Comparar os &amp;dois estados selecionados</translation>
    </message>
</context>
<context>
    <name>HISTORY_MODEL</name>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Reposto</translation>
    </message>
    <message>
        <source>This state was replaced by another one.</source>
        <translation>Este estado foi substituído por outro.</translation>
    </message>
    <message>
        <source>This state was deleted.</source>
        <translation>Este estado foi excluído.</translation>
    </message>
    <message>
        <source>This state was deleted, and put back because it could not be replaced.</source>
        <translation>Este estado foi excluído e reposto porque não pôde ser substituído.</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuário</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alteração</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Família</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
</context>
<context>
    <name>HISTORY_PAGE</name>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>&amp;Bring Back...</source>
        <translation>&amp;Restaurar...</translation>
    </message>
    <message>
        <source>Devices and templates</source>
        <translation>Dispositivos e modelos</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>No&amp;me:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuário:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Ti&amp;po:</translation>
    </message>
    <message>
        <source>States: %1, searching...</source>
        <translation>Estados: %1, procurando...</translation>
    </message>
    <message>
        <source>States: more than %1</source>
        <translation>Estados: mais de %1</translation>
    </message>
    <message>
        <source>States: %1</source>
        <translation>Estados: %1</translation>
    </message>
    <message>
        <source>There is no state before this one.</source>
        <translation>Não há estado antes deste.</translation>
    </message>
    <message>
        <source>There is no state after this one: it was deleted or renamed.</source>
        <translation>Não há estado depois deste: foi excluído ou renomeado.</translation>
    </message>
    <message>
        <source>There is no current state: it was deleted or renamed.</source>
        <translation>Não há estado atual: foi excluído ou renomeado.</translation>
    </message>
    <message>
        <source>A state was removed from the history.</source>
        <translation>Um estado foi removido do histórico.</translation>
    </message>
</context>
<context>
    <name>IMPORT_DIALOG</name>
    <message>
        <source>Import: %1</source>
        <translation>Importar: %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>As in the files</source>
        <translation>Como nos arquivos</translation>
    </message>
    <message>
        <source>&amp;Replace records that differ</source>
        <translation>&amp;Substituir os registros diferentes</translation>
    </message>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Família de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modo de configuração:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Compare...</source>
        <translation>&amp;Comparar...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>The files are being read.</source>
        <translation>Os arquivos estão sendo lidos.</translation>
    </message>
    <message>
        <source>Nothing is imported while there are problems.</source>
        <translation>Nada é importado enquanto houver problemas.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Não há nada para importar.</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>No arquivo</translation>
    </message>
    <message>
        <source>The records are being stored.</source>
        <translation>Os registros estão sendo salvos.</translation>
    </message>
    <message>
        <source>Nothing was imported: %1
The preview was made again.</source>
        <translation>Nada foi importado: %1
A visualização foi refeita.</translation>
    </message>
    <message>
        <source>Imported into %1. New: %2, replaced: %3</source>
        <translation>Importado em %1. Novos: %2, substituídos: %3</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Nothing was imported: you have cancelled it.</source>
        <translation>Nada foi importado: você cancelou.</translation>
    </message>
</context>
<context>
    <name>IMPORT_MODEL</name>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Will be replaced</source>
        <translation>Será substituído</translation>
    </message>
    <message>
        <source>Differs, not imported</source>
        <translation>Difere, não importado</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Already exists</source>
        <translation>Já existe</translation>
    </message>
    <message>
        <source>%1: differs</source>
        <translation>%1: difere</translation>
    </message>
    <message>
        <source>%1: stored %2, in the file %3</source>
        <translation>%1: salvo %2, no arquivo %3</translation>
    </message>
    <message>
        <source>Differs in: %1</source>
        <translation>Difere em: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Família</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observação</translation>
    </message>
</context>
<context>
    <name>MODULE_LOADER</name>
    <message>
        <source>The dialog module was not found. Searched:
%1</source>
        <translation>O módulo do diálogo não foi encontrado. Locais pesquisados:
%1</translation>
    </message>
    <message>
        <source>The dialog module %1 is not loaded: everyone may change %2.</source>
        <translation>O módulo do diálogo %1 não é carregado: qualquer um pode alterar %2.</translation>
    </message>
    <message>
        <source>The dialog module %1 cannot be loaded:
%2</source>
        <translation>O módulo do diálogo %1 não pode ser carregado:
%2</translation>
    </message>
    <message>
        <source>The dialog module %1 has no function &quot;%2&quot;.</source>
        <translation>O módulo do diálogo %1 não tem a função “%2”.</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DESK</name>
    <message>
        <source>New Device</source>
        <translation>Novo dispositivo</translation>
    </message>
    <message>
        <source>SFDP Read-Out of a Chip</source>
        <translation>Leitura SFDP de um chip</translation>
    </message>
</context>
<context>
    <name>NEW_DEVICE_DIALOG</name>
    <message>
        <source>New Device</source>
        <translation>Novo dispositivo</translation>
    </message>
    <message>
        <source>New Device: %1</source>
        <translation>Novo dispositivo: %1</translation>
    </message>
    <message>
        <source>&amp;Warnings:</source>
        <translation>A&amp;visos:</translation>
    </message>
    <message>
        <source>&amp;Listed parts with this ID:</source>
        <translation>Componentes da &amp;lista com este ID:</translation>
    </message>
    <message>
        <source>Create &amp;Device</source>
        <translation>C&amp;riar dispositivo</translation>
    </message>
    <message>
        <source>Save &amp;Read-Out...</source>
        <translation>&amp;Salvar leitura...</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>no differences</source>
        <translation>sem diferenças</translation>
    </message>
    <message>
        <source>Save the Read-Out</source>
        <translation>Salvar a leitura</translation>
    </message>
    <message>
        <source>What was entered has changed other values or the warnings. Look at them, then create the device.</source>
        <translation>O que foi inserido alterou outros valores ou os avisos. Verifique-os e depois crie o dispositivo.</translation>
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
        <translation>O que o arquivo cobre</translation>
    </message>
    <message>
        <source>The whole device</source>
        <translation>Todo o dispositivo</translation>
    </message>
    <message>
        <source>Address and length</source>
        <translation>Endereço e comprimento</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>&amp;Intervalo:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Endereço:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Comprimento:</translation>
    </message>
</context>
<context>
    <name>PLACE_FIELDS</name>
    <message>
        <source>Device &amp;family:</source>
        <translation>&amp;Família de dispositivos:</translation>
    </message>
    <message>
        <source>Configuration &amp;mode:</source>
        <translation>&amp;Modo de configuração:</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_MENU</name>
    <message>
        <source>&amp;Configuration Device...</source>
        <translation>&amp;Dispositivo de configuração...</translation>
    </message>
    <message>
        <source>&amp;Detect</source>
        <translation>D&amp;etectar</translation>
    </message>
    <message>
        <source>&amp;Open File...</source>
        <translation>&amp;Abrir arquivo...</translation>
    </message>
    <message>
        <source>&amp;Try the Flow</source>
        <translation>&amp;Testar o fluxo</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;New Device from Chip...</source>
        <translation>&amp;Novo dispositivo a partir do chip...</translation>
    </message>
    <message>
        <source>New Device from S&amp;FDP File...</source>
        <translation>Novo dispositivo a partir de arquivo S&amp;FDP...</translation>
    </message>
    <message>
        <source>D&amp;uplicate...</source>
        <translation>D&amp;uplicar...</translation>
    </message>
    <message>
        <source>Device Data&amp;base...</source>
        <translation>&amp;Banco de dados de dispositivos...</translation>
    </message>
    <message>
        <source>Save Flow C&amp;harts...</source>
        <translation>Salvar fluxo&amp;gramas...</translation>
    </message>
</context>
<context>
    <name>PROGRAMMER_WINDOW</name>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operações</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Rastreio</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>&amp;Programmer</source>
        <translation>&amp;Gravador</translation>
    </message>
    <message>
        <source>Not started: %1</source>
        <translation>Não iniciado: %1</translation>
    </message>
    <message>
        <source>The place where the file begins is not a number.</source>
        <translation>O lugar onde o arquivo começa não é um número.</translation>
    </message>
    <message>
        <source>Address or length is not a number.</source>
        <translation>O endereço ou o comprimento não é um número.</translation>
    </message>
    <message>
        <source>Nothing was detected: %1</source>
        <translation>Nada foi detectado: %1</translation>
    </message>
    <message>
        <source>The chip has the ID %1.</source>
        <translation>O chip tem o ID %1.</translation>
    </message>
    <message>
        <source>No device has the ID %1.</source>
        <translation>Nenhum dispositivo tem o ID %1.</translation>
    </message>
    <message>
        <source>The run is being cancelled. If it is stopped at once, the state of the chip is unknown.</source>
        <translation>A execução está sendo cancelada. Se for parada imediatamente, o estado do chip será desconhecido.</translation>
    </message>
    <message>
        <source>A run is under way. Cancel it and close the window?</source>
        <translation>Uma execução está em andamento. Cancelá-la e fechar a janela?</translation>
    </message>
    <message>
        <source>Stop at once</source>
        <translation>Parar imediatamente</translation>
    </message>
    <message>
        <source>Cancel the run</source>
        <translation>Cancelar a execução</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Esperar</translation>
    </message>
    <message>
        <source>Keep running</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is stored.</source>
        <translation>O dispositivo “%1” foi salvo.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; is not there, or of a family or mode that is not offered here.</source>
        <translation>O dispositivo “%1” não existe ou é de uma família ou modo não oferecido aqui.</translation>
    </message>
    <message>
        <source>The flow charts cannot be saved: %1</source>
        <translation>Os fluxogramas não podem ser salvos: %1</translation>
    </message>
    <message>
        <source>The flow charts are in %1.</source>
        <translation>Os fluxogramas estão em %1.</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>READ_OUT_FILE</name>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <translation>O arquivo %1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 não é um arquivo.</translation>
    </message>
    <message>
        <source>The file %1 has more than %2 bytes and is not an SFDP read-out.</source>
        <translation>O arquivo %1 tem mais de %2 bytes e não é uma leitura SFDP.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>O arquivo %1 não pode ser gravado: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_COMPARISON</name>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Built-in device</source>
        <translation>Dispositivo integrado</translation>
    </message>
    <message>
        <source>Own device</source>
        <translation>Dispositivo próprio</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Família</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Quad-I/O flow</source>
        <translation>Fluxo Quad I/O</translation>
    </message>
    <message>
        <source>Single-I/O flow</source>
        <translation>Fluxo Single I/O</translation>
    </message>
    <message>
        <source>The flow cannot be read.</source>
        <translation>Não é possível ler o fluxo.</translation>
    </message>
</context>
<context>
    <name>RECORD_EXPORT</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>O arquivo %1 não pode ser gravado: %2</translation>
    </message>
</context>
<context>
    <name>RECORD_STATES</name>
    <message>
        <source>%1, state %2 (until %3)</source>
        <translation>%1, estado %2 (até %3)</translation>
    </message>
    <message>
        <source>%1, now</source>
        <translation>%1, agora</translation>
    </message>
</context>
<context>
    <name>REMOVED_DEVICES</name>
    <message>
        <source>The device &quot;%1&quot; was deleted by another program already.</source>
        <translation>O dispositivo “%1” já foi excluído por outro programa.</translation>
    </message>
    <message>
        <source>The history does not have the device &quot;%1&quot; any more.</source>
        <translation>O histórico não contém mais o dispositivo “%1”.</translation>
    </message>
</context>
<context>
    <name>RUN_BAR</name>
    <message>
        <source>Progress of the run</source>
        <translation>Progresso da execução</translation>
    </message>
    <message>
        <source>Tr&amp;y the Flow</source>
        <translation>&amp;Testar o fluxo</translation>
    </message>
    <message>
        <source>Erases, programs and verifies an emulated chip. No hardware is needed or used.</source>
        <translation>Apaga, programa e verifica um chip emulado. Nenhum hardware é necessário ou usado.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>I&amp;niciar</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>C&amp;ancelar</translation>
    </message>
    <message>
        <source>The run is being cancelled.</source>
        <translation>A execução está sendo cancelada.</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>restam %1</translation>
    </message>
</context>
<context>
    <name>RUN_PREPARATION</name>
    <message>
        <source>No operation is checked.</source>
        <translation>Nenhuma operação está marcada.</translation>
    </message>
    <message>
        <source>No file is chosen.</source>
        <translation>Nenhum arquivo foi escolhido.</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>Nenhum dispositivo foi escolhido.</translation>
    </message>
    <message>
        <source>The device &quot;%1&quot; does not exist.</source>
        <translation>O dispositivo “%1” não existe.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>O arquivo %1 não pode ser lido.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>O arquivo %1 está vazio.</translation>
    </message>
    <message>
        <source>The file needs %1 bytes from %2 on, and the device has %3 bytes.</source>
        <translation>O arquivo precisa de %1 bytes a partir de %2, e o dispositivo tem %3 bytes.</translation>
    </message>
</context>
<context>
    <name>RUN_WORDS</name>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Failed at %1</source>
        <translation>Falhou em %1</translation>
    </message>
    <message>
        <source>Failed at %1, action %2 &quot;%3&quot;</source>
        <translation>Falhou em %1, ação %2 “%3”</translation>
    </message>
    <message>
        <source>Stopped. The state of the chip is unknown.</source>
        <translation>Parado. O estado do chip é desconhecido.</translation>
    </message>
    <message>
        <source>The connection is lost. The state of the chip is unknown.</source>
        <translation>A conexão foi perdida. O estado do chip é desconhecido.</translation>
    </message>
    <message>
        <source>Passed, but not everything could be stored</source>
        <translation>Aprovado, mas nem tudo pôde ser salvo</translation>
    </message>
    <message>
        <source>Passed, but a real chip would have refused or misread commands: see the log</source>
        <translation>Aprovado, mas um chip real teria recusado ou interpretado mal comandos: veja o registro</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Aprovado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Not started: see the log</source>
        <translation>Não iniciado: veja o registro</translation>
    </message>
    <message>
        <source>a test pattern</source>
        <translation>um padrão de teste</translation>
    </message>
    <message>
        <source>Trying the flow of %1 on an emulated chip that is full of other data</source>
        <translation>Teste do fluxo de %1 em um chip emulado cheio de outros dados</translation>
    </message>
    <message>
        <source>Content: %1</source>
        <translation>Conteúdo: %1</translation>
    </message>
    <message>
        <source>Nothing more was sent, because this may be another chip than the device says.</source>
        <translation>Nada mais foi enviado, porque este chip pode não ser o do dispositivo.</translation>
    </message>
    <message>
        <source>Note of the chip: %1</source>
        <translation>Nota do chip: %1</translation>
    </message>
    <message>
        <source>%1 (%2 commands, %3 s)</source>
        <translation>%1 (%2 comandos, %3 s)</translation>
    </message>
    <message>
        <source>Whole sectors are erased. These bytes beside the range are erased, too:

%1

Erase them?</source>
        <translation>Setores inteiros são apagados. Estes bytes fora do intervalo também são apagados:

%1

Apagá-los?</translation>
    </message>
    <message>
        <source>%1 on the connection %2</source>
        <translation>%1 na conexão %2</translation>
    </message>
</context>
<context>
    <name>TRACE_MODEL</name>
    <message>
        <source>%1 ... (%2 bytes)</source>
        <translation>%1 ... (%2 bytes)</translation>
    </message>
    <message>
        <source>%1, %2 clocks</source>
        <translation>%1, %2 ciclos</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Tempo (ms)</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
</context>
<context>
    <name>TRACE_PAGE</name>
    <message>
        <source>All operations</source>
        <translation>Todas as operações</translation>
    </message>
    <message>
        <source>Commands of:</source>
        <translation>Comandos de:</translation>
    </message>
    <message>
        <source>Commands of the last run</source>
        <translation>Comandos da última execução</translation>
    </message>
    <message>
        <source>%1 commands</source>
        <translation>%1 comandos</translation>
    </message>
</context>
</TS>
