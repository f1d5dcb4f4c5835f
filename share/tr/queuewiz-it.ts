<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>La procedura guidata non può essere avviata: il file dell&apos;interfaccia è danneggiato.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Il servizio di stampa non è riuscito a elencare i driver: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Il servizio di stampa non risponde</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>La stampante «%s» esiste già. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Impossibile verificare se il nome è libero: %1. Riprovare.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Impossibile aggiungere la stampante.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>La stampante incompleta è stata rimossa.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Ora è la stampante predefinita.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Non è stato possibile impostarla come stampante predefinita.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Non è stato possibile impostare il formato carta %1; sceglierlo nelle opzioni del driver.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Procedura guidata Aggiungi stampante</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>La stampante non è stata installata. Annullare davvero la procedura guidata?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s su %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Modello sconosciuto</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>SCONOSCIUTO</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Ricerca del servizio di stampa in corso...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (collegata via USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>In attesa della stampa della pagina di prova...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>La pagina di prova è stata stampata.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>La pagina di prova non è stata stampata: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>La pagina di prova non è ancora stata stampata: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>La pagina di prova è stata annullata.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Impossibile annullare la pagina di prova: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>la stampante è ferma</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>il lavoro è stato annullato</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>il sistema di stampa ha rinunciato al lavoro</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>il lavoro è in attesa</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>il servizio di stampa non ha indicato alcun motivo</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>La stampante non ha indicato cosa sa fare.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Aggiungi stampante</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Benvenuti nella procedura guidata Aggiungi stampante</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Questa procedura guidata configura una nuova stampante su questo computer in pochi passaggi.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La procedura guidata chiederà:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;come è collegata la stampante: via cavo, tramite la rete o non ancora collegata,&lt;/li&gt;&lt;li&gt;il modello della stampante, per usare il driver corretto,&lt;/li&gt;&lt;li&gt;un nome per la nuova stampante.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Quindi aggiunge la stampante, la imposta come stampante predefinita e permette di stampare una pagina di prova.&lt;/p&gt;&lt;p&gt;Fare clic su &lt;b&gt;Successivo&lt;/b&gt; per iniziare.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Collegamento della stampante</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Scegliere come è collegata la stampante. Una stampante non ancora collegata può essere configurata con una porta scelta manualmente.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Come è collegata la stampante?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>Stampante &amp;locale, collegata via cavo USB o parallelo</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Stampa&amp;nte:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Stampante di &amp;rete</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Stampante &amp;trovata:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>&amp;Cerca in rete</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Cerca stampanti nella rete locale</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Informazioni sulle stampanti di rete...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Come collegare una stampante di rete e trovarne l&apos;indirizzo</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Stampante non collegata ora: scegliere la porta &amp;manualmente</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Immagine della stampante</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Porta della stampante</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Scegliere la porta che la stampante userà. Per una stampante di rete o un file, fare doppio clic sulla voce (o premere F2) e digitare l&apos;indirizzo, per esempio socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>P&amp;orte:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Porte della stampante</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Modello della stampante</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Scegliere il modello della stampante. L&apos;elenco mostra i driver di questo pacchetto.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Modelli di stampante:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Modelli di stampante</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Il servizio di stampa non risponde</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Recupera di nuovo i modelli di stampante</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Nome della stampante</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Dare alla stampante un nome breve (lettere, cifre e trattini bassi). Posizione e descrizione sono facoltative e aiutano gli altri a trovarla.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>&amp;Nome della stampante:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>P&amp;osizione:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>per esempio: Stanza 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descrizione:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>per esempio: stampante laser vicino alla finestra</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Stampante aggiunta</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>La stampante è pronta per l&apos;uso.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La stampante &lt;b&gt;%1&lt;/b&gt; è stata aggiunta.&lt;/p&gt;%4&lt;p&gt;Modello: %2&lt;br&gt;Porta: %3&lt;/p&gt;&lt;p&gt;Stampare una pagina di prova per verificare che tutto funzioni, o regolare le opzioni del driver. Fare clic su &lt;b&gt;Fine&lt;/b&gt; per chiudere la procedura guidata.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Stampa pagina di pro&amp;va</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>&amp;Opzioni del driver...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Digita invece l&apos;indirizzo</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Annulla pagina di prova</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Browser web non trovato.
Usare questo indirizzo:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Errore nell&apos;avvio di %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>inattiva</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>in elaborazione</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>fermata</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>stato sconosciuto</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>accetta lavori</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>rifiuta lavori</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Autenticazione annullata</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Il servizio di stampa su %1 non risponde</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 non può modificare le stampanti di questo computer. Nome e password di un amministratore:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Controlla che la stampante sia accesa e collegata alla stessa rete di questo computer, e che nessun firewall blocchi il DNS multicast (porta UDP 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Nessuna stampante di rete ha risposto.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>La ricerca in rete non è installata (manca %1).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>La ricerca in rete non è riuscita: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>nessun motivo indicato</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Opzione PPD sì/no</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Testo della scelta 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Testo della scelta 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Impossibile aprire il file PPD.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Impossibile salvare le impostazioni nel file PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Proprietà di «%1»</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Opzioni di %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Opzioni del driver</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Opzione PPD numerica</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valore:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Nessuna opzione selezionata</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, in conflitto</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Non definito</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>È stata selezionata %n opzione in conflitto. Risolvere il conflitto prima di continuare:
</numerusform>
            <numerusform>Sono state selezionate %n opzioni in conflitto. Risolvere il conflitto prima di continuare:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Configurazione del driver</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Autorizzazione</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Questa stampante è già configurata come «%1».</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>La stampante ha risposto ma non ha indicato il suo modello.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>La stampante dichiara di essere: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>La stampante non ha risposto. Scegliere il suo driver manualmente.</translation>
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
        <source>Parallel</source>
        <translation>Parallela</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
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
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Precedente</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Successivo &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Pagina di prova</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Pagina di prova per %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Pagina di prova della stampante</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Stampante:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Driver:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Connessione:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Computer:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Stampata il:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Carta:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Se questa pagina è leggibile, la stampante funziona. Entrambe le cornici dovrebbero essere complete, i livelli di grigio distinti e i colori puliti.</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Stanza 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>La stampante loopback della demo</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sottotitolo</translation>
    </message>
</context>
</TS>
