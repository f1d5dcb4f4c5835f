<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>De assistent kan niet starten: het bestand met de vensterindeling is beschadigd.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>De afdrukservice kon de lijst met stuurprogramma&apos;s niet ophalen: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>De afdrukservice reageert niet</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>Printer ‘%s’ bestaat al. Kies een andere naam.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Kan niet controleren of de naam vrij is: %1. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Kan de printer niet toevoegen.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>De onvolledige printer is weer verwijderd.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Dit is nu uw standaardprinter.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>De printer kon niet als standaardprinter worden ingesteld.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Het papierformaat kon niet op %1 worden ingesteld; kies het in de opties van het stuurprogramma.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Assistent Printer toevoegen</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>De printer is niet geïnstalleerd. Weet u zeker dat u de assistent wilt afbreken?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s op %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Onbekend model</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>ONBEKEND</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Afdrukservice wordt gezocht...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (aangesloten via USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Wachten tot de testpagina is afgedrukt...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>De testpagina is afgedrukt.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>De testpagina is niet afgedrukt: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>De testpagina is nog niet afgedrukt: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>De testpagina is geannuleerd.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Kan de testpagina niet annuleren: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>de printer is gestopt</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>de taak is geannuleerd</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>het afdruksysteem heeft de taak opgegeven</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>de taak wordt vastgehouden</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>de afdrukservice gaf geen reden</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>De printer heeft niet gemeld wat hij kan.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Printer toevoegen</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Welkom bij de assistent Printer toevoegen</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Deze assistent stelt in een paar stappen een nieuwe printer in op deze computer.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;De assistent vraagt u naar:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;hoe de printer is aangesloten: met een kabel, via het netwerk of nog niet,&lt;/li&gt;&lt;li&gt;het printermodel, zodat het juiste stuurprogramma wordt gebruikt,&lt;/li&gt;&lt;li&gt;een naam voor de nieuwe printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Daarna voegt hij de printer toe, maakt hem uw standaardprinter en kunt u een testpagina afdrukken.&lt;/p&gt;&lt;p&gt;Klik op &lt;b&gt;Volgende&lt;/b&gt; om te beginnen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Printerverbinding</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Kies hoe de printer is aangesloten. Een printer die nog niet is aangesloten, kunt u instellen met een poort die u zelf kiest.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Hoe is de printer aangesloten?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>&amp;Lokale printer, aangesloten met een USB- of parallelle kabel</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Printer:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>&amp;Netwerkprinter</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Gevonden p&amp;rinter:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>Netwerk door&amp;zoeken</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Zoekt naar printers in het lokale netwerk</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Over netwerkprinters...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Hoe u een netwerkprinter aansluit en het adres ervan vindt</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Printer nu niet aangesloten: zelf de poort &amp;kiezen</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Afbeelding van de printer</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Printerpoort</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Kies de poort die de printer gebruikt. Voor een netwerkprinter of een bestand dubbelklikt u op het item (of drukt u op F2) en typt u het adres, bijvoorbeeld socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>&amp;Poorten:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Printerpoorten</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Printermodel</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Kies het model van uw printer. De lijst toont de stuurprogramma&apos;s van dit pakket.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Printermodellen:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Printermodellen</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>De afdrukservice reageert niet</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>De printermodellen opnieuw ophalen</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opnieuw proberen</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Printernaam</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Geef de printer een korte naam (letters, cijfers en onderstrepingstekens). Locatie en beschrijving zijn optioneel en helpen anderen de printer te vinden.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>Printer&amp;naam:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Locatie:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>bijvoorbeeld: Kamer 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschrijving:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>bijvoorbeeld: Laserprinter bij het raam</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Printer toegevoegd</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>De printer is klaar voor gebruik.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;De printer &lt;b&gt;%1&lt;/b&gt; is toegevoegd.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Poort: %3&lt;/p&gt;&lt;p&gt;Druk een testpagina af om te controleren of alles werkt, of pas de opties van het stuurprogramma aan. Klik op &lt;b&gt;Voltooien&lt;/b&gt; om de assistent te sluiten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Test&amp;pagina afdrukken</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>Stuurprogramma&amp;opties...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>In plaats daarvan het &amp;adres typen</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>Testpagina &amp;annuleren</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Geen webbrowser gevonden.
Gebruik dit adres:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Fout bij het starten van %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>inactief</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>bezig</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestopt</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>status onbekend</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>accepteert taken</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>weigert taken</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Authenticatie geannuleerd</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>De afdrukservice op %1 reageert niet</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 mag de printers van deze computer niet wijzigen. Naam en wachtwoord van een beheerder:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Controleer of de printer aanstaat en met hetzelfde netwerk is verbonden als deze computer, en of geen firewall multicast-DNS (UDP-poort 5353) blokkeert.</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Geen enkele netwerkprinter heeft geantwoord.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>Het zoeken in het netwerk is niet geïnstalleerd (%1 ontbreekt).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>Zoeken in het netwerk is mislukt: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>geen reden opgegeven</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>PPD-optie ja/nee</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Tekst van keuze 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Tekst van keuze 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Kan het PPD-bestand niet openen.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Kan de instellingen niet in het PPD-bestand opslaan.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Eigenschappen van ‘%1’</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Opties van %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Opties van stuurprogramma</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuleren</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Numerieke PPD-optie</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Waarde:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max.</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Geen optie geselecteerd</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, in conflict</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Niet ingesteld</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>U hebt %n optie gekozen die in conflict is. Los het conflict op voordat u verdergaat:
</numerusform>
            <numerusform>U hebt %n opties gekozen die met elkaar in conflict zijn. Los het conflict op voordat u verdergaat:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Configuratie van stuurprogramma</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Autorisatie</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Deze printer is al ingesteld als ‘%1’.</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>De printer heeft geantwoord, maar gaf zijn model niet op.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>De printer meldt zich als: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>De printer heeft niet geantwoord. Kies zelf het stuurprogramma.</translation>
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
        <translation>Parallel</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
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
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Terug</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Volgende &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Vol&amp;tooien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Testpagina</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Testpagina voor %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Testpagina van de printer</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Printer:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Stuurprogramma:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Verbinding:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Computer:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Afgedrukt op:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Als u deze pagina kunt lezen, werkt de printer. Beide kaders moeten volledig zijn, de grijstinten van elkaar te onderscheiden en de kleuren zuiver.</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Kamer 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>De loopbackprinter van de demo</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Ondertitel</translation>
    </message>
</context>
</TS>
