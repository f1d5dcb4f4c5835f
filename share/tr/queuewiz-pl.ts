<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>Nie można uruchomić kreatora: plik opisu interfejsu jest uszkodzony.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Usługa drukowania nie mogła wyświetlić listy sterowników: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Usługa drukowania nie odpowiada</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>Drukarka „%s” już istnieje. Proszę wybrać inną nazwę.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Nie można sprawdzić, czy nazwa jest wolna: %1. Proszę spróbować ponownie.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Nie można dodać drukarki.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>Niekompletna drukarka została usunięta.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Jest to teraz drukarka domyślna.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Nie udało się ustawić jej jako drukarki domyślnej.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Nie udało się ustawić rozmiaru papieru %1; proszę go wybrać w opcjach sterownika.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Kreator dodawania drukarki</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>Drukarka nie została zainstalowana. Czy na pewno przerwać działanie kreatora?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s na %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Nieznany model</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>NIEZNANY</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Wyszukiwanie usługi drukowania...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (podłączona przez USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Oczekiwanie na wydrukowanie strony testowej...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>Strona testowa została wydrukowana.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>Strona testowa nie została wydrukowana: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>Strona testowa nie została jeszcze wydrukowana: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>Strona testowa została anulowana.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Nie można anulować strony testowej: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>drukarka jest zatrzymana</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>zadanie zostało anulowane</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>system drukowania zrezygnował z zadania</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>zadanie jest wstrzymane</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>usługa drukowania nie podała przyczyny</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>Drukarka nie podała, co potrafi.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Dodaj drukarkę</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Witamy w kreatorze dodawania drukarki</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Ten kreator w kilku krokach skonfiguruje nową drukarkę na tym komputerze.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Kreator zapyta o:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;sposób podłączenia drukarki: kablem, przez sieć lub jeszcze niepodłączona,&lt;/li&gt;&lt;li&gt;model drukarki, aby użyć właściwego sterownika,&lt;/li&gt;&lt;li&gt;nazwę nowej drukarki.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Następnie doda drukarkę, ustawi ją jako drukarkę domyślną i umożliwi wydrukowanie strony testowej.&lt;/p&gt;&lt;p&gt;Aby rozpocząć, proszę kliknąć &lt;b&gt;Dalej&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Podłączenie drukarki</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Proszę wybrać, jak drukarka jest podłączona. Drukarkę, która nie jest jeszcze podłączona, można skonfigurować z samodzielnie wybranym portem.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Jak podłączona jest drukarka?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>Drukarka &amp;lokalna, podłączona kablem USB lub równoległym</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Dru&amp;karka:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Drukarka &amp;sieciowa</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Znalezio&amp;na drukarka:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>Prz&amp;eszukaj sieć</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Wyszukuje drukarki w sieci lokalnej</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Informacje o drukarkach sieciowych...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Jak podłączyć drukarkę sieciową i znaleźć jej adres</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Drukarka obecnie niepodłączona: wybór p&amp;ortu ręcznie</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Obraz drukarki</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Port drukarki</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Proszę wybrać port, którego będzie używać drukarka. W przypadku drukarki sieciowej lub pliku należy kliknąć dwukrotnie wpis (lub nacisnąć F2) i wpisać adres, na przykład socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>P&amp;orty:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Porty drukarki</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Model drukarki</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Proszę wybrać model drukarki. Lista zawiera sterowniki z tego pakietu.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Modele drukarek:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Modele drukarek</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Usługa drukowania nie odpowiada</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Ponownie pobiera modele drukarek</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Sp&amp;róbuj ponownie</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Nazwa drukarki</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Proszę nadać drukarce krótką nazwę (litery, cyfry i podkreślenia). Położenie i opis są opcjonalne i pomagają innym ją znaleźć.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>&amp;Nazwa drukarki:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>Poł&amp;ożenie:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>na przykład: Pokój 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>Opi&amp;s:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>na przykład: Drukarka laserowa przy oknie</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Dodano drukarkę</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>Drukarka jest gotowa do użycia.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Drukarka &lt;b&gt;%1&lt;/b&gt; została dodana.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Można wydrukować stronę testową, aby sprawdzić, czy wszystko działa, lub dostosować opcje sterownika. Kliknięcie &lt;b&gt;Zakończ&lt;/b&gt; zamyka kreator.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Wydrukuj stronę &amp;testową</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>&amp;Opcje sterownika...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Wpisz adres ręcznie</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Anuluj stronę testową</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Nie znaleziono przeglądarki internetowej.
Proszę użyć tego adresu:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Błąd podczas uruchamiania %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>bezczynna</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>przetwarza</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zatrzymana</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>stan nieznany</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>przyjmuje zadania</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>odrzuca zadania</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Anulowano uwierzytelnianie</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Usługa drukowania na %1 nie odpowiada</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 nie może zmieniać drukarek tego komputera. Nazwa i hasło administratora:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Sprawdź, czy drukarka jest włączona i podłączona do tej samej sieci co ten komputer oraz czy żadna zapora sieciowa nie blokuje multicast DNS (port UDP 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Żadna drukarka sieciowa nie odpowiedziała.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>Wyszukiwanie w sieci nie jest zainstalowane (brak %1).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>Wyszukiwanie w sieci nie powiodło się: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>nie podano przyczyny</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Opcja PPD tak/nie</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Tekst wyboru 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Tekst wyboru 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Nie można otworzyć pliku PPD.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Nie można zapisać ustawień w pliku PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Właściwości „%1”</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Opcje %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Opcje sterownika</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Liczbowa opcja PPD</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wartość:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>max</source>
        <translation>maks.</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Nie wybrano opcji</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, w konflikcie</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Nieokreślone</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Wybrano %n opcję, która jest w konflikcie. Proszę rozwiązać konflikt przed kontynuowaniem:
</numerusform>
            <numerusform>Wybrano %n opcje, które są ze sobą w konflikcie. Proszę rozwiązać konflikt przed kontynuowaniem:
</numerusform>
            <numerusform>Wybrano %n opcji, które są ze sobą w konflikcie. Proszę rozwiązać konflikt przed kontynuowaniem:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Konfiguracja sterownika</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Uwierzytelnianie</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Ta drukarka jest już skonfigurowana jako „%1”.</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>Drukarka odpowiedziała, ale nie podała swojego modelu.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>Drukarka zgłasza się jako: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>Drukarka nie odpowiedziała. Proszę samodzielnie wybrać jej sterownik.</translation>
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
        <translation>Równoległy</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
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
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Wstecz</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Dalej &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Pomoc</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Strona testowa</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Strona testowa dla %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Strona testowa drukarki</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drukarka:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Sterownik:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Połączenie:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Komputer:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Wydrukowano:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Jeśli tę stronę można przeczytać, drukarka działa. Obie ramki powinny być kompletne, stopnie szarości rozróżnialne, a kolory czyste.</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Pokój 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>Drukarka pętli zwrotnej w wersji demonstracyjnej</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Podtytuł</translation>
    </message>
</context>
</TS>
