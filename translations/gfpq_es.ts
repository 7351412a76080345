<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>gfpq_dlg</name>
    <message>
        <source>Configuration Device</source>
        <translation>Dispositivo de configuración</translation>
    </message>
    <message>
        <source>Device family: </source>
        <translation>Familia de dispositivos: </translation>
    </message>
    <message>
        <source>Configuration mode: </source>
        <translation>Modo de configuración: </translation>
    </message>
    <message>
        <source>Custom database directory:</source>
        <translation>Directorio de base de datos personalizado:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Name filter:</source>
        <translation>Filtro por nombre:</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Device name: </source>
        <translation>Nombre del dispositivo: </translation>
    </message>
    <message>
        <source>Device ID: </source>
        <translation>ID del dispositivo: </translation>
    </message>
    <message>
        <source>Device I/O voltage: </source>
        <translation>Tensión de I/O: </translation>
    </message>
    <message>
        <source>Device density: </source>
        <translation>Capacidad del dispositivo: </translation>
    </message>
    <message>
        <source>Total device die:</source>
        <translation>Número total de dies:</translation>
    </message>
    <message>
        <source>Single I/O mode dummy clock: </source>
        <translation>Ciclos dummy en modo Single I/O: </translation>
    </message>
    <message>
        <source>Quad I/O mode dummy clock:</source>
        <translation>Ciclos dummy en modo Quad I/O:</translation>
    </message>
    <message>
        <source>Programming flow template: </source>
        <translation>Plantilla del flujo de programación: </translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Save as template</source>
        <translation>Guardar como plantilla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>%1: diagrama de flujo</translation>
    </message>
    <message>
        <source>%1: actions</source>
        <translation>%1: acciones</translation>
    </message>
    <message>
        <source>%1: properties of the selected action</source>
        <translation>%1: propiedades de la acción seleccionada</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Failed to save flash as %1 tab has invalid property value: 

%2</source>
        <translation>No se pudo guardar el dispositivo flash porque la pestaña «%1» contiene un valor de propiedad no válido: 

%2</translation>
    </message>
    <message>
        <source>Tempate name &apos;%1&apos; is conflicts with the device name %2.</source>
        <translation>El nombre de plantilla «%1» entra en conflicto con el nombre del dispositivo %2.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Failed to set the custom database directory to </source>
        <translation>No se pudo cambiar el directorio de base de datos personalizado a </translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>i.e. 0xC2 0x20 0x19</source>
        <translation>p.&#xa0;ej.: 0xC2 0x20 0x19</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
    <message>
        <source>Actions:</source>
        <translation>Acciones:</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
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
        <translation>Editar plantillas</translation>
    </message>
    <message>
        <source>Templates:</source>
        <translation>Plantillas:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
