<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>Dispositivo de configuração</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>Família de dispositivos: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>Modo de configuração: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>Diretório do banco de dados personalizado:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>Filtrar por nome:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>Nome do dispositivo: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>ID do dispositivo: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>Tensão de I/O: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>Capacidade do dispositivo: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>Total de dies:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>Ciclos dummy no modo Single I/O: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>Ciclos dummy no modo Quad I/O:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>Modelo do fluxo de programação: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Salvar como modelo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>%1: flow chart</source>
        <translation>%1: fluxograma</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: ações</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: propriedades da ação selecionada</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>Não foi possível salvar o dispositivo flash porque a guia “%1” contém um valor de propriedade inválido: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>O nome do modelo “%1” entra em conflito com o nome do dispositivo %2.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>Não foi possível definir o diretório do banco de dados personalizado como </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>p.&#xa0;ex. 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserir</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>Ações:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriedade</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>gfpq_edit_template_dlg</name>
    <message>
        <source>Edit Templates</source>
        <translation>Editar modelos</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>Modelos:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
