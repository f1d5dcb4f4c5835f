<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>Guiden kan inte starta: filen med gränssnittsbeskrivningen är skadad.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Utskriftstjänsten kunde inte lista drivrutinerna: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Utskriftstjänsten svarar inte</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>Skrivaren ”%s” finns redan. Välj ett annat namn.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Det går inte att kontrollera om namnet är ledigt: %1. Försök igen.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Det gick inte att lägga till skrivaren.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>Den ofullständiga skrivaren har tagits bort igen.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Den är nu din standardskrivare.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Den kunde inte göras till din standardskrivare.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Pappersstorleken kunde inte ställas in på %1; välj den i drivrutinsalternativen.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Guiden Lägg till skrivare</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>Skrivaren har inte installerats. Vill du verkligen avbryta guiden?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s på %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Okänd modell</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>OKÄND</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Letar efter utskriftstjänsten...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (ansluten via USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Väntar på att testsidan skrivs ut...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>Testsidan har skrivits ut.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>Testsidan skrevs inte ut: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>Testsidan har inte skrivits ut än: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>Testsidan har avbrutits.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Det gick inte att avbryta testsidan: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>skrivaren är stoppad</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>jobbet har avbrutits</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>utskriftssystemet gav upp jobbet</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>jobbet hålls kvar</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>utskriftstjänsten angav ingen orsak</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>Skrivaren berättade inte vad den kan.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Lägg till skrivare</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Välkommen till guiden Lägg till skrivare</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Den här guiden konfigurerar en ny skrivare på den här datorn i några få steg.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Guiden frågar efter:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;hur skrivaren är ansluten: med kabel, via nätverket eller inte ansluten ännu,&lt;/li&gt;&lt;li&gt;skrivarmodellen, så att rätt drivrutin används,&lt;/li&gt;&lt;li&gt;ett namn på den nya skrivaren.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Sedan lägger den till skrivaren, gör den till din standardskrivare och låter dig skriva ut en testsida.&lt;/p&gt;&lt;p&gt;Klicka på &lt;b&gt;Nästa&lt;/b&gt; för att börja.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Skrivaranslutning</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Välj hur skrivaren är ansluten. En skrivare som inte är inkopplad ännu kan konfigureras med en port som du väljer själv.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Hur är skrivaren ansluten?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>&amp;Lokal skrivare, ansluten med USB- eller parallellkabel</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Skri&amp;vare:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Nätve&amp;rksskrivare</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Hittad skriv&amp;are:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>S&amp;ök i nätverket</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Sök efter skrivare i det lokala nätverket</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Om nätverksskrivare...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Så ansluter du en nätverksskrivare och hittar dess adress</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Skrivaren är inte ansluten nu: välj &amp;port själv</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Bild på skrivaren</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Skrivarport</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Välj porten som skrivaren ska använda. För en nätverksskrivare eller en fil dubbelklickar du på posten (eller trycker på F2) och skriver adressen, till exempel socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>&amp;Portar:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Skrivarportar</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Skrivarmodell</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Välj modellen på din skrivare. Listan visar drivrutinerna i det här paketet.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>Skrivar&amp;modeller:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Skrivarmodeller</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Utskriftstjänsten svarar inte</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Hämta skrivarmodellerna igen</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Skrivarnamn</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Ge skrivaren ett kort namn (bokstäver, siffror och understreck). Plats och beskrivning är valfria och hjälper andra att hitta den.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>Skri&amp;varnamn:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Plats:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>till exempel: Rum 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>Beskr&amp;ivning:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>till exempel: Laserskrivaren vid fönstret</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Skrivaren har lagts till</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>Skrivaren är klar att använda.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Skrivaren &lt;b&gt;%1&lt;/b&gt; har lagts till.&lt;/p&gt;%4&lt;p&gt;Modell: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Skriv ut en testsida för att kontrollera att allt fungerar, eller justera drivrutinsalternativen. Klicka på &lt;b&gt;Slutför&lt;/b&gt; för att stänga guiden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Skriv ut &amp;testsida</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>Drivrutins&amp;alternativ...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>Skriv in &amp;adressen i stället</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>Avbryt test&amp;sidan</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Varning</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Ingen webbläsare hittades.
Använd den här adressen:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Fel vid start av %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>inaktiv</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>bearbetar</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>stoppad</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>okänt tillstånd</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>tar emot jobb</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>avvisar jobb</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Autentiseringen avbröts</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Utskriftstjänsten på %1 svarar inte</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 får inte ändra skrivarna på den här datorn. Namn och lösenord för en administratör:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Kontrollera att skrivaren är påslagen och ansluten till samma nätverk som den här datorn, och att ingen brandvägg blockerar multicast-DNS (UDP-port 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Ingen nätverksskrivare svarade.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>Nätverkssökningen är inte installerad (%1 saknas).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>Nätverkssökningen misslyckades: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>ingen orsak angiven</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>PPD-alternativ ja/nej</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Text för val 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Text för val 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Det går inte att öppna PPD-filen.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Det går inte att spara inställningarna i PPD-filen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Egenskaper för ”%1”</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Alternativ för %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Drivrutinsalternativ</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Avbryt</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Numeriskt PPD-alternativ</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Värde:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
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
        <translation>Inget alternativ har valts</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, i konflikt</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Inte angivet</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Du har valt %n alternativ som står i konflikt. Lös konflikten innan du fortsätter:
</numerusform>
            <numerusform>Du har valt %n alternativ som står i konflikt med varandra. Lös konflikten innan du fortsätter:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Drivrutinskonfiguration</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Autentisering</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Den här skrivaren är redan inställd som ”%1”.</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>Skrivaren svarade men angav inte sin modell.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>Skrivaren säger att den är: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>Skrivaren svarade inte. Välj dess drivrutin själv.</translation>
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
        <translation>Parallell</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nätverk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
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
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Bakåt</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Nästa &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slutför</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjälp</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Testsida</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Testsida för %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Skrivarens testsida</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Skrivare:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Drivrutin:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Anslutning:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Dator:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Utskriven:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papper:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Om du kan läsa den här sidan fungerar skrivaren. Båda ramarna ska vara hela, gråstegen tydligt åtskilda och färgerna rena.</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Rum 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>Demons loopback-skrivare</translation>
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
        <translation>Undertitel</translation>
    </message>
</context>
</TS>
