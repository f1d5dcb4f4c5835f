<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>Der Assistent kann nicht starten: Seine Formulardatei ist beschädigt.
%1</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Es lässt sich nicht prüfen, ob der Name frei ist: %1. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>Der unvollständige Drucker wurde wieder entfernt.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Er ist jetzt Ihr Standarddrucker.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Er konnte nicht zu Ihrem Standarddrucker gemacht werden.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Sein Papierformat konnte nicht auf %1 gesetzt werden; wählen Sie es in den Treiberoptionen.</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Der Druckdienst konnte die Treiber nicht auflisten: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Der Druckdienst antwortet nicht</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>Der Drucker „%s“ ist bereits vorhanden. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Der Drucker konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Assistent „Drucker hinzufügen“</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>Der Drucker wurde nicht eingerichtet. Möchten Sie den Assistenten wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Unbekanntes Modell</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s an %s</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Der Druckdienst wird gesucht...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (über USB angeschlossen)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Warten, bis die Testseite gedruckt ist...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>Die Testseite wurde gedruckt.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>Die Testseite wurde nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>Die Testseite ist noch nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>Die Testseite wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Die Testseite konnte nicht abgebrochen werden: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>der Auftrag wurde abgebrochen</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>das Drucksystem hat den Auftrag aufgegeben</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>der Auftrag wird zurückgehalten</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>der Druckdienst hat keinen Grund genannt</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>Der Drucker hat nicht mitgeteilt, was er kann.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>The printing service does not answer</source>
        <translation>Der Druckdienst antwortet nicht</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Druckermodelle erneut abrufen</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>Add Printer</source>
        <translation>Drucker hinzufügen</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Willkommen beim Druckerassistenten</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Dieser Assistent richtet in wenigen Schritten einen neuen Drucker auf diesem Computer ein.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der Assistent fragt Sie nach:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;der Art, wie der Drucker angeschlossen ist: per Kabel, über das Netzwerk oder noch gar nicht,&lt;/li&gt;&lt;li&gt;dem Druckermodell, damit der passende Treiber verwendet wird,&lt;/li&gt;&lt;li&gt;einem Namen für den neuen Drucker.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Anschließend richtet er den Drucker ein, macht ihn zu Ihrem Standarddrucker und bietet Ihnen an, eine Testseite zu drucken.&lt;/p&gt;&lt;p&gt;Klicken Sie auf &lt;b&gt;Weiter&lt;/b&gt;, um zu beginnen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Druckerverbindung</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Wählen Sie, wie der Drucker angeschlossen ist. Einen Drucker, der noch nicht eingesteckt ist, können Sie mit einem selbst gewählten Anschluss einrichten.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Wie ist der Drucker angeschlossen?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>&amp;Lokaler Drucker, per USB- oder Parallelkabel angeschlossen</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Drucker:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>&amp;Netzwerkdrucker</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>&amp;Gefundener Drucker:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>Netzwerk d&amp;urchsuchen</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Sucht im lokalen Netzwerk nach Druckern</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Info zu Netzwerkdruckern...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>So schließen Sie einen Netzwerkdrucker an und finden seine Adresse heraus</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Drucker derzeit nicht angeschlossen: &amp;Anschluss selbst wählen</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Bild des Druckers</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Druckeranschluss</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Wählen Sie den Anschluss, den der Drucker verwenden soll. Für einen Netzwerkdrucker oder eine Datei doppelklicken Sie auf den Eintrag (oder drücken F2) und geben die Adresse ein, zum Beispiel socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>&amp;Anschlüsse:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Druckeranschlüsse</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Druckermodell</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Wählen Sie das Modell Ihres Druckers. Die Liste zeigt die Treiber dieses Pakets.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Druckermodelle:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Druckermodelle</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Druckername</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Geben Sie dem Drucker einen kurzen Namen (Buchstaben, Ziffern und Unterstriche). Standort und Beschreibung sind optional und helfen anderen, ihn zu finden.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>Drucker&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>Stand&amp;ort:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>zum Beispiel: Raum 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>zum Beispiel: Laserdrucker am Fenster</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Drucker hinzugefügt</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>Der Drucker ist betriebsbereit.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der Drucker &lt;b&gt;%1&lt;/b&gt; wurde hinzugefügt.&lt;/p&gt;%4&lt;p&gt;Modell: %2&lt;br&gt;Anschluss: %3&lt;/p&gt;&lt;p&gt;Drucken Sie eine Testseite, um zu prüfen, ob alles funktioniert, oder passen Sie die Treiberoptionen an. Klicken Sie auf &lt;b&gt;Abschließen&lt;/b&gt;, um den Assistenten zu schließen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>&amp;Testseite drucken</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>Treiber&amp;optionen...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>Adresse stattdessen &amp;eingeben</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>Testseite &amp;abbrechen</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Es wurde kein Webbrowser gefunden.
Verwenden Sie diese Adresse:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Fehler beim Starten von %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>Zustand unbekannt</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>nimmt Aufträge an</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>weist Aufträge ab</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Anmeldung abgebrochen</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 darf die Drucker dieses Computers nicht ändern. Name und Passwort eines Administrators:</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Der Druckdienst unter %1 antwortet nicht</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Prüfen Sie, ob der Drucker eingeschaltet und mit demselben Netzwerk wie dieser Computer verbunden ist und ob keine Firewall Multicast-DNS (UDP-Port 5353) blockiert.</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Kein Netzwerkdrucker hat geantwortet.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>Die Netzwerksuche ist nicht installiert (%1 fehlt).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>Die Netzwerksuche ist fehlgeschlagen: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>kein Grund angegeben</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>PPD-Option Ja/Nein</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Text der Auswahl 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Text der Auswahl 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Die PPD-Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Die Einstellungen können nicht in der PPD-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Eigenschaften von „%1“</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Optionen für %s... </translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Treiberoptionen</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Numerische PPD-Option</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>max</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Keine Option ausgewählt</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, im Konflikt</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Nicht festgelegt</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message>
        <source>Driver configuration</source>
        <translation>Treiberkonfiguration</translation>
    </message>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Sie haben %n Option gewählt, die im Konflikt steht. Bitte lösen Sie den Konflikt, bevor Sie fortfahren:
</numerusform>
            <numerusform>Sie haben %n Optionen gewählt, die sich widersprechen. Bitte lösen Sie den Konflikt, bevor Sie fortfahren:
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Authentifizierung</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Dieser Drucker ist bereits als „%1“ eingerichtet.</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>Der Drucker hat geantwortet, aber sein Modell nicht genannt.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>Der Drucker meldet sich als: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>Der Drucker hat nicht geantwortet. Bitte wählen Sie seinen Treiber selbst.</translation>
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
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>Parallele Schnittstelle</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
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
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Ab&amp;schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page for %1</source>
        <translation>Testseite für %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Testseite des Druckers</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Treiber:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Anschluss:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Computer:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Gedruckt am:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Wenn Sie diese Seite lesen können, funktioniert der Drucker. Beide Rahmen sollten vollständig, die Graustufen klar unterscheidbar und die Farben sauber sein.</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Testseite</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Raum 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>Der Loopback-Drucker der Demo</translation>
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
        <translation>Untertitel</translation>
    </message>
</context>
</TS>
