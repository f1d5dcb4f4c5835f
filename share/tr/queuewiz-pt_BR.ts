<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>O assistente não pode ser iniciado: o arquivo de interface está danificado.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>O serviço de impressão não conseguiu listar os drivers: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>O serviço de impressão não responde</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>A impressora “%s” já existe. Escolha outro nome.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Não foi possível verificar se o nome está livre: %1. Tente novamente.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Não foi possível adicionar a impressora.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>A impressora incompleta foi removida.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Agora ela é a sua impressora padrão.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Não foi possível torná-la a sua impressora padrão.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Não foi possível definir o tamanho do papel como %1; escolha-o nas opções do driver.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Assistente para adicionar impressora</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>A impressora não foi instalada. Deseja mesmo cancelar o assistente?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s em %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Modelo desconhecido</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONHECIDO</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Procurando o serviço de impressão...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (conectada via USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Aguardando a impressão da página de teste...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>A página de teste foi impressa.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>A página de teste não foi impressa: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>A página de teste ainda não foi impressa: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>A página de teste foi cancelada.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Não foi possível cancelar a página de teste: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>a impressora está parada</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>o trabalho foi cancelado</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>o sistema de impressão desistiu do trabalho</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>o trabalho está retido</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>o serviço de impressão não informou o motivo</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>A impressora não informou o que sabe fazer.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Adicionar impressora</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Bem-vindo ao assistente para adicionar impressora</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Este assistente configura uma nova impressora neste computador em poucos passos.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;O assistente vai perguntar:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;como a impressora está conectada: por cabo, pela rede ou ainda não conectada,&lt;/li&gt;&lt;li&gt;o modelo da impressora, para que o driver certo seja usado,&lt;/li&gt;&lt;li&gt;um nome para a nova impressora.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Em seguida, ele adiciona a impressora, a torna sua impressora padrão e permite imprimir uma página de teste.&lt;/p&gt;&lt;p&gt;Clique em &lt;b&gt;Próximo&lt;/b&gt; para começar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Conexão da impressora</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Escolha como a impressora está conectada. Uma impressora que ainda não está conectada pode ser configurada com uma porta escolhida por você.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Como a impressora está conectada?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>Impressora &amp;local, conectada por cabo USB ou paralelo</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Impressora:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Impressora de &amp;rede</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Impressora &amp;encontrada:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>&amp;Buscar na rede</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Procura impressoras na rede local</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;Sobre impressoras de rede...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Como conectar uma impressora de rede e descobrir o seu endereço</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Impressora não &amp;conectada agora: escolher a porta manualmente</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Imagem da impressora</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Porta da impressora</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Escolha a porta que a impressora vai usar. Para uma impressora de rede ou um arquivo, clique duas vezes na entrada (ou pressione F2) e digite o endereço, por exemplo socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>Po&amp;rtas:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Portas da impressora</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Modelo da impressora</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Escolha o modelo da sua impressora. A lista mostra os drivers deste pacote.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Modelos de impressora:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Modelos de impressora</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>O serviço de impressão não responde</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Buscar os modelos de impressora novamente</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Nome da impressora</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Dê à impressora um nome curto (letras, algarismos e sublinhados). Local e descrição são opcionais e ajudam outras pessoas a encontrá-la.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>&amp;Nome da impressora:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Local:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>por exemplo: Sala 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descrição:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>por exemplo: Impressora laser perto da janela</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Impressora adicionada</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>A impressora está pronta para uso.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A impressora &lt;b&gt;%1&lt;/b&gt; foi adicionada.&lt;/p&gt;%4&lt;p&gt;Modelo: %2&lt;br&gt;Porta: %3&lt;/p&gt;&lt;p&gt;Imprima uma página de teste para verificar se tudo funciona, ou ajuste as opções do driver. Clique em &lt;b&gt;Concluir&lt;/b&gt; para fechar o assistente.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Imprimir página de &amp;teste</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>Opções do &amp;driver...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Digitar o endereço</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Cancelar página de teste</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Navegador web não encontrado.
Use este endereço:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Erro ao iniciar %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>ociosa</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>processando</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>parada</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>estado desconhecido</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>aceitando trabalhos</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>rejeitando trabalhos</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Autenticação cancelada</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>O serviço de impressão em %1 não responde</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 não pode alterar as impressoras deste computador. Nome e senha de um administrador:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Verifique se a impressora está ligada e conectada à mesma rede que este computador e se nenhum firewall bloqueia o DNS multicast (porta UDP 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Nenhuma impressora de rede respondeu.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>A busca na rede não está instalada (falta %1).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>A busca na rede falhou: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>nenhum motivo informado</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Opção PPD sim/não</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Texto da opção 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Texto da opção 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Não foi possível abrir o arquivo PPD.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Não foi possível salvar as configurações no arquivo PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Propriedades de “%1”</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Opções de %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Opções do driver</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Opção PPD numérica</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Valor:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>mín</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>max</source>
        <translation>máx</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Nenhuma opção selecionada</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, em conflito</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Indefinido</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Você selecionou %n opção em conflito. Resolva o conflito antes de continuar:
</numerusform>
            <numerusform>Você selecionou %n opções em conflito. Resolva o conflito antes de continuar:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Configuração do driver</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Autorização</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Esta impressora já está configurada como “%1”.</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>A impressora respondeu, mas não informou seu modelo.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>A impressora diz ser: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>A impressora não respondeu. Escolha o driver você mesmo.</translation>
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
        <translation>Paralela</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
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
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Próximo &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>C&amp;oncluir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Página de teste</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Página de teste para %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Página de teste da impressora</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impressora:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Driver:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Conexão:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Computador:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Impresso em:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papel:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Se você consegue ler esta página, a impressora funciona. As duas molduras devem estar completas, os tons de cinza distintos e as cores limpas.</translation>
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
        <translation>A impressora de loopback da demonstração</translation>
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
