<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>Průvodce nelze spustit: soubor s popisem rozhraní je poškozený.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Tisková služba nemohla vypsat ovladače: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Tisková služba neodpovídá</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>Tiskárna „%s“ již existuje. Zvolte jiný název.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Nelze ověřit, zda je název volný: %1. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Tiskárnu nelze přidat.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>Neúplná tiskárna byla opět odstraněna.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Nyní je to vaše výchozí tiskárna.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Nepodařilo se ji nastavit jako výchozí tiskárnu.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Velikost papíru se nepodařilo nastavit na %1; zvolte ji v možnostech ovladače.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Průvodce přidáním tiskárny</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>Tiskárna nebyla nainstalována. Opravdu chcete průvodce ukončit?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s na %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Neznámý model</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>NEZNÁMÝ</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Hledá se tisková služba...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (připojeno přes USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Čeká se na vytištění zkušební stránky...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>Zkušební stránka byla vytištěna.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>Zkušební stránka se nevytiskla: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>Zkušební stránka se zatím nevytiskla: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>Zkušební stránka byla zrušena.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Zkušební stránku nelze zrušit: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>tiskárna je zastavena</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>úloha byla zrušena</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>tiskový systém úlohu vzdal</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>úloha je pozdržena</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>tisková služba neuvedla důvod</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>Tiskárna nesdělila, co umí.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Přidat tiskárnu</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Vítejte v průvodci přidáním tiskárny</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Tento průvodce v několika krocích nastaví na tomto počítači novou tiskárnu.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Průvodce se zeptá na:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;způsob připojení tiskárny: kabelem, přes síť, nebo zatím nepřipojena,&lt;/li&gt;&lt;li&gt;model tiskárny, aby byl použit správný ovladač,&lt;/li&gt;&lt;li&gt;název nové tiskárny.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Poté tiskárnu přidá, nastaví ji jako výchozí tiskárnu a umožní vytisknout zkušební stránku.&lt;/p&gt;&lt;p&gt;Začněte kliknutím na &lt;b&gt;Další&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Připojení tiskárny</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Zvolte, jak je tiskárna připojena. Tiskárnu, která ještě není zapojena, lze nastavit s portem, který si zvolíte sami.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Jak je tiskárna připojena?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>&amp;Místní tiskárna připojená kabelem USB nebo paralelním</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Tiskárna:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>&amp;Síťová tiskárna</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Nalezená t&amp;iskárna:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>&amp;Prohledat síť</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Vyhledá tiskárny v místní síti</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;O síťových tiskárnách...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Jak připojit síťovou tiskárnu a zjistit její adresu</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Tiskárna nyní nepřipojena: zvolit po&amp;rt ručně</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Obrázek tiskárny</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Port tiskárny</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Zvolte port, který bude tiskárna používat. U síťové tiskárny nebo souboru poklepejte na položku (nebo stiskněte F2) a zadejte adresu, například socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>&amp;Porty:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Porty tiskárny</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Model tiskárny</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Zvolte model své tiskárny. Seznam obsahuje ovladače z tohoto balíčku.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Modely tiskáren:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Modely tiskáren</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Tisková služba neodpovídá</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Znovu načíst modely tiskáren</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Název tiskárny</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Dejte tiskárně krátký název (písmena, číslice a podtržítka). Umístění a popis jsou nepovinné a pomohou ostatním tiskárnu najít.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>Název &amp;tiskárny:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Umístění:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>například: Místnost 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Popis:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>například: Laserová tiskárna u okna</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Tiskárna přidána</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>Tiskárna je připravena k použití.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Tiskárna &lt;b&gt;%1&lt;/b&gt; byla přidána.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Vytiskněte zkušební stránku a ověřte, že vše funguje, nebo upravte možnosti ovladače. Kliknutím na &lt;b&gt;Dokončit&lt;/b&gt; průvodce zavřete.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Vytisknout zkušební &amp;stránku</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>&amp;Možnosti ovladače...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Zadat adresu ručně</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Zrušit zkušební stránku</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Webový prohlížeč nebyl nalezen.
Použijte tuto adresu:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Chyba při spouštění %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>nečinná</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>zpracovává</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zastavena</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>stav neznámý</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>přijímá úlohy</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>odmítá úlohy</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Ověření zrušeno</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Tisková služba na %1 neodpovídá</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 nesmí měnit tiskárny tohoto počítače. Jméno a heslo správce:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Zkontrolujte, zda je tiskárna zapnutá a připojená ke stejné síti jako tento počítač a zda žádný firewall neblokuje multicast DNS (port UDP 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Žádná síťová tiskárna neodpověděla.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>Vyhledávání v síti není nainstalováno (chybí %1).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>Vyhledávání v síti selhalo: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>důvod nebyl uveden</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Volba PPD ano/ne</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Text volby 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Text volby 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Soubor PPD nelze otevřít.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Nastavení nelze uložit do souboru PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Vlastnosti „%1“</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Možnosti %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Možnosti ovladače</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Číselná volba PPD</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Hodnota:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
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
        <translation>Není vybrána žádná volba</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, v konfliktu</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Neurčeno</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Vybrali jste %n volbu, která je v konfliktu. Před pokračováním konflikt vyřešte:
</numerusform>
            <numerusform>Vybrali jste %n volby, které jsou ve vzájemném konfliktu. Před pokračováním konflikt vyřešte:
</numerusform>
            <numerusform>Vybrali jste %n voleb, které jsou ve vzájemném konfliktu. Před pokračováním konflikt vyřešte:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Nastavení ovladače</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Ověření oprávnění</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Tato tiskárna je již nastavena jako „%1“.</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>Tiskárna odpověděla, ale neuvedla svůj model.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>Tiskárna uvádí, že je: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>Tiskárna neodpověděla. Zvolte její ovladač sami.</translation>
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
        <translation>Paralelní</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Síť</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
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
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Další &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Do&amp;končit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Zkušební stránka</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Zkušební stránka pro %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Zkušební stránka tiskárny</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Tiskárna:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Ovladač:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Připojení:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Počítač:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Vytištěno:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papír:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Pokud tuto stránku dokážete přečíst, tiskárna funguje. Oba rámečky by měly být úplné, stupně šedi rozlišitelné a barvy čisté.</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Místnost 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>Tiskárna loopback pro ukázku</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Podnadpis</translation>
    </message>
</context>
</TS>
