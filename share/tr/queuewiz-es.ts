<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>El asistente no puede iniciarse: su archivo de formulario está dañado.
%1</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>No se puede comprobar si el nombre está libre: %1. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>Se ha eliminado la impresora incompleta.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Ahora es su impresora predeterminada.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>No se ha podido convertir en su impresora predeterminada.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>No se ha podido ajustar su tamaño de papel a %1; elíjalo en las opciones del controlador.</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>El servicio de impresión no ha podido listar los controladores: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>El servicio de impresión no responde</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>La impresora «%s» ya existe. Elija otro nombre.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>No se pudo añadir la impresora.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Asistente para añadir impresoras</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>La impresora no se ha instalado. ¿Seguro que desea cancelar el asistente?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Modelo desconocido</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s en %s</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONOCIDA</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Buscando el servicio de impresión...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (conectada por USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Esperando a que se imprima la página de prueba...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>Se ha impreso la página de prueba.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>La página de prueba no se imprimió: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>La página de prueba aún no se ha impreso: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>Se ha cancelado la página de prueba.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>No se pudo cancelar la página de prueba: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>la impresora está detenida</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>el trabajo se ha cancelado</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>el sistema de impresión abandonó el trabajo</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>el trabajo está retenido</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>el servicio de impresión no dio ningún motivo</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>La impresora no indicó lo que puede hacer.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>The printing service does not answer</source>
        <translation>El servicio de impresión no responde</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Obtener de nuevo los modelos de impresora</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Add Printer</source>
        <translation>Añadir impresora</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Bienvenido al asistente para añadir impresoras</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Este asistente configura una impresora nueva en este equipo en unos pocos pasos.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;El asistente le pedirá:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;cómo está conectada la impresora: por cable, por la red o todavía sin conectar;&lt;/li&gt;&lt;li&gt;el modelo de la impresora, para usar el controlador adecuado;&lt;/li&gt;&lt;li&gt;un nombre para la impresora nueva.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;A continuación añade la impresora, la convierte en su impresora predeterminada y le permite imprimir una página de prueba.&lt;/p&gt;&lt;p&gt;Pulse &lt;b&gt;Siguiente&lt;/b&gt; para empezar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Conexión de la impresora</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Elija cómo está conectada la impresora. Una impresora que aún no está enchufada se puede configurar con un puerto elegido por usted.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>¿Cómo está conectada la impresora?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>Impresora &amp;local, conectada por cable USB o paralelo</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Impresora:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Impresora de &amp;red</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Impresora &amp;encontrada:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>&amp;Buscar en la red</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Busca impresoras en la red local</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>A&amp;cerca de las impresoras de red...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Cómo conectar una impresora de red y averiguar su dirección</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Impresora sin conectar por el &amp;momento: elegir el puerto manualmente</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Imagen de la impresora</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Puerto de la impresora</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Elija el puerto que usará la impresora. Para una impresora de red o un archivo, haga doble clic en su entrada (o pulse F2) y escriba la dirección, por ejemplo socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>&amp;Puertos:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Puertos de impresora</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Modelo de impresora</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Elija el modelo de su impresora. La lista muestra los controladores de este paquete.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Modelos de impresora:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Modelos de impresora</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Nombre de la impresora</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Dé a la impresora un nombre corto (letras, cifras y guiones bajos). La ubicación y la descripción son opcionales y ayudan a otros a encontrarla.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>N&amp;ombre de la impresora:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>por ejemplo: sala 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>por ejemplo: impresora láser junto a la ventana</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Impresora añadida</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>La impresora está lista para usarse.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La impresora &lt;b&gt;%1&lt;/b&gt; se ha añadido.&lt;/p&gt;%4&lt;p&gt;Modelo: %2&lt;br&gt;Puerto: %3&lt;/p&gt;&lt;p&gt;Imprima una página de prueba para comprobar que todo funciona, o ajuste las opciones del controlador. Pulse &lt;b&gt;Finalizar&lt;/b&gt; para cerrar el asistente.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Imprimir página de &amp;prueba</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>&amp;Opciones del controlador...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Escribir la dirección en su lugar</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Cancelar página de prueba</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>No se encontró ningún navegador web.
Use esta dirección:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Error al iniciar %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>inactiva</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>estado desconocido</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>acepta trabajos</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>rechaza trabajos</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Autenticación cancelada</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 no puede cambiar las impresoras de este equipo. Nombre y contraseña de un administrador:</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>El servicio de impresión en %1 no responde</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Compruebe que la impresora está encendida y conectada a la misma red que este equipo, y que ningún cortafuegos bloquea el DNS multidifusión (puerto UDP 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Ninguna impresora de red respondió.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>La búsqueda en la red no está instalada (falta %1).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>La búsqueda en la red falló: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>no se indicó ningún motivo</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Opción PPD booleana</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Texto de la opción 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Texto de la opción 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>No se puede abrir el archivo PPD.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>No se pueden guardar los ajustes en el archivo PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Propiedades de «%1»</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Opciones de %s... </translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Opciones del controlador</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Opción PPD numérica</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valor:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>mín.</translation>
    </message>
    <message>
        <source>max</source>
        <translation>máx.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Ninguna opción seleccionada</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, en conflicto</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Sin definir</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message>
        <source>Driver configuration</source>
        <translation>Configuración del controlador</translation>
    </message>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Ha elegido %n opción que está en conflicto. Resuelva el conflicto antes de continuar:
</numerusform>
            <numerusform>Ha elegido %n opciones que están en conflicto entre sí. Resuelva el conflicto antes de continuar:
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Autenticación</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Esta impresora ya está configurada como «%1».</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>La impresora respondió, pero no indicó su modelo.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>La impresora dice ser: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>La impresora no respondió. Elija usted mismo su controlador.</translation>
    </message>
</context>
<context>
    <name>PrinterPortListView</name>
    <message>
        <source>IPP</source>
        <translation>IPP</translation>
    </message>
    <message>
        <source>AppSocket</source>
        <translation>AppSocket</translation>
    </message>
    <message>
        <source>LPR/LPD</source>
        <translation>LPR/LPD</translation>
    </message>
    <message>
        <source>SMB</source>
        <translation>SMB</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>Puerto paralelo</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>Siguie&amp;nte &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page for %1</source>
        <translation>Página de prueba para %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Página de prueba de la impresora</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impresora:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Controlador:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Conexión:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Equipo:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papel:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Si puede leer esta página, la impresora funciona. Los dos marcos deben estar completos, los escalones de gris bien diferenciados y los colores limpios.</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Página de prueba</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Sala 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>La impresora de bucle local de la demostración</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulo</translation>
    </message>
</context>
</TS>
