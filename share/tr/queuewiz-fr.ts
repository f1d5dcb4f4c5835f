<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>L&apos;assistant ne peut pas démarrer&#xa0;: son fichier de formulaire est endommagé.
%1</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Impossible de vérifier si le nom est libre&#xa0;: %1. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>L&apos;imprimante incomplète a été supprimée.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>C&apos;est maintenant votre imprimante par défaut.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Elle n&apos;a pas pu devenir votre imprimante par défaut.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Son format de papier n&apos;a pas pu être réglé sur %1&#xa0;; choisissez-le dans les options du pilote.</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Le service d&apos;impression n&apos;a pas pu lister les pilotes&#xa0;: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Le service d&apos;impression ne répond pas</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>L&apos;imprimante «&#xa0;%s&#xa0;» existe déjà. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Impossible d&apos;ajouter l&apos;imprimante.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Assistant d&apos;ajout d&apos;imprimante</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>L&apos;imprimante n&apos;a pas été installée. Voulez-vous vraiment quitter l&apos;assistant&#xa0;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Modèle inconnu</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s sur %s</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>INCONNUE</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Recherche du service d&apos;impression...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (connectée par USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>En attente de l&apos;impression de la page de test...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>La page de test a été imprimée.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>La page de test n&apos;a pas été imprimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>La page de test n&apos;a pas encore été imprimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>La page de test a été annulée.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Impossible d&apos;annuler la page de test&#xa0;: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>l&apos;imprimante est arrêtée</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>le travail a été annulé</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>le système d&apos;impression a abandonné le travail</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>le travail est suspendu</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>le service d&apos;impression n&apos;a donné aucune raison</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>L&apos;imprimante n&apos;a pas indiqué ce qu&apos;elle sait faire.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>The printing service does not answer</source>
        <translation>Le service d&apos;impression ne répond pas</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Récupérer à nouveau les modèles d&apos;imprimante</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Add Printer</source>
        <translation>Ajouter une imprimante</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Bienvenue dans l&apos;assistant d&apos;ajout d&apos;imprimante</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Cet assistant installe une nouvelle imprimante sur cet ordinateur en quelques étapes.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;L&apos;assistant va vous demander&#xa0;:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;comment l&apos;imprimante est raccordée&#xa0;: par câble, par le réseau, ou pas encore branchée&#xa0;;&lt;/li&gt;&lt;li&gt;le modèle de l&apos;imprimante, afin d&apos;utiliser le bon pilote&#xa0;;&lt;/li&gt;&lt;li&gt;un nom pour la nouvelle imprimante.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Il ajoute ensuite l&apos;imprimante, en fait votre imprimante par défaut et vous propose d&apos;imprimer une page de test.&lt;/p&gt;&lt;p&gt;Cliquez sur &lt;b&gt;Suivant&lt;/b&gt; pour commencer.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Connexion de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Choisissez comment l&apos;imprimante est raccordée. Une imprimante qui n&apos;est pas encore branchée peut être installée sur un port que vous choisissez vous-même.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Comment l&apos;imprimante est-elle raccordée&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>Imprimante &amp;locale, branchée par câble USB ou parallèle</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Imprimante &amp;réseau</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Imprimante tr&amp;ouvée&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>Re&amp;chercher sur le réseau</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Recherche les imprimantes du réseau local</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Guide des imprimantes réseau...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Comment raccorder une imprimante réseau et trouver son adresse</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Imprimante &amp;non branchée pour le moment&#xa0;: choisir le port vous-même</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Image de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Port de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Choisissez le port que l&apos;imprimante utilisera. Pour une imprimante réseau ou un fichier, double-cliquez sur son entrée (ou appuyez sur F2) et saisissez l&apos;adresse, par exemple socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>P&amp;orts&#xa0;:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Ports d&apos;imprimante</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Modèle d&apos;imprimante</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Choisissez le modèle de votre imprimante. La liste présente les pilotes de ce paquet.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Modèles d&apos;imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Modèles d&apos;imprimante</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Nom de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Donnez à l&apos;imprimante un nom court (lettres, chiffres et tirets bas). L&apos;emplacement et la description sont facultatifs et aident les autres à la trouver.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>&amp;Nom de l&apos;imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>par exemple&#xa0;: salle 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description&#xa0;:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>par exemple&#xa0;: imprimante laser près de la fenêtre</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Imprimante ajoutée</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>L&apos;imprimante est prête à l&apos;emploi.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;L&apos;imprimante &lt;b&gt;%1&lt;/b&gt; a été ajoutée.&lt;/p&gt;%4&lt;p&gt;Modèle&#xa0;: %2&lt;br&gt;Port&#xa0;: %3&lt;/p&gt;&lt;p&gt;Imprimez une page de test pour vérifier que tout fonctionne, ou réglez les options du pilote. Cliquez sur &lt;b&gt;Terminer&lt;/b&gt; pour fermer l&apos;assistant.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>&amp;Imprimer une page de test</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>&amp;Options du pilote...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Taper l&apos;adresse à la place</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Annuler la page de test</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Aucun navigateur web n&apos;a été trouvé.
Utilisez cette adresse&#xa0;:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Erreur au lancement de %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>inactive</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>en cours d&apos;impression</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>état inconnu</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>accepte les tâches</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>refuse les tâches</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Authentification annulée</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 n&apos;a pas le droit de modifier les imprimantes de cet ordinateur. Nom et mot de passe d&apos;un administrateur&#xa0;:</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Le service d&apos;impression à l&apos;adresse %1 ne répond pas</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Vérifiez que l&apos;imprimante est allumée et connectée au même réseau que cet ordinateur, et qu&apos;aucun pare-feu ne bloque le DNS multidiffusion (port UDP 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Aucune imprimante réseau n&apos;a répondu.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>La recherche réseau n&apos;est pas installée (%1 est manquant).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>La recherche réseau a échoué&#xa0;: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>aucune raison indiquée</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Option PPD booléenne</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Texte du choix 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Texte du choix 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Impossible d&apos;ouvrir le fichier PPD.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Impossible d&apos;enregistrer les réglages dans le fichier PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Propriétés de «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Options de %s... </translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Options du pilote</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Option PPD numérique</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valeur&#xa0;:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Aucune option sélectionnée</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, en conflit</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Non défini</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message>
        <source>Driver configuration</source>
        <translation>Configuration du pilote</translation>
    </message>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Vous avez choisi %n option en conflit. Résolvez le conflit avant de continuer&#xa0;:
</numerusform>
            <numerusform>Vous avez choisi %n options en conflit entre elles. Résolvez le conflit avant de continuer&#xa0;:
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Authentification</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d&apos;utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Cette imprimante est déjà configurée sous le nom «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>L&apos;imprimante a répondu sans indiquer son modèle.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>L&apos;imprimante indique être&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>L&apos;imprimante n&apos;a pas répondu. Veuillez choisir son pilote vous-même.</translation>
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
        <translation>Port</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>Port parallèle</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Suivant &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page for %1</source>
        <translation>Page de test pour %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Page de test de l&apos;imprimante</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Pilote&#xa0;:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Connexion&#xa0;:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Ordinateur&#xa0;:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Imprimée le&#xa0;:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier&#xa0;:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Si vous pouvez lire cette page, l&apos;imprimante fonctionne. Les deux cadres doivent être complets, les niveaux de gris bien distincts et les couleurs nettes.</translation>
    </message>
    <message>
        <source>Test page</source>
        <translation>Page de test</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Salle 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>L&apos;imprimante de bouclage de la démo</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titre</translation>
    </message>
</context>
</TS>
