<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>向导无法启动：界面描述文件已损坏。
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>打印服务无法列出驱动程序：%1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>打印服务没有响应</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>打印机“%s”已存在。请选择其他名称。</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>无法检查该名称是否可用：%1。请重试。</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>无法添加打印机。</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>未完成的打印机已被删除。</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>它现在是您的默认打印机。</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>无法将它设为您的默认打印机。</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>无法将纸张大小设为 %1；请在驱动程序选项中选择。</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>添加打印机向导</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>打印机尚未安装。确定要取消向导吗？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s（%s）</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>未知型号</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>正在查找打印服务...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1（通过 USB 连接）</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>正在等待打印测试页...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>测试页已打印。</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>测试页未能打印：%1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>测试页尚未打印：%1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>测试页已取消。</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>无法取消测试页：%1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>打印机已停止</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>作业已取消</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>打印系统已放弃该作业</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>作业被挂起</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>打印服务未给出原因</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>打印机未说明其功能。</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>添加打印机</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>欢迎使用添加打印机向导</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>此向导将通过几个步骤在这台计算机上设置新打印机。</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;向导将询问：&lt;/p&gt;&lt;ol&gt;&lt;li&gt;打印机的连接方式：通过线缆、通过网络，或尚未连接，&lt;/li&gt;&lt;li&gt;打印机型号，以便使用正确的驱动程序，&lt;/li&gt;&lt;li&gt;新打印机的名称。&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;然后它会添加打印机，将其设为您的默认打印机，并让您打印测试页。&lt;/p&gt;&lt;p&gt;单击&lt;b&gt;下一步&lt;/b&gt;开始。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>打印机连接</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>请选择打印机的连接方式。尚未接上的打印机可以使用您自己选择的端口进行设置。</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>打印机如何连接？</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>本地打印机，通过 USB 或并口线缆连接(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>打印机(&amp;P)：</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>网络打印机(&amp;W)</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>找到的打印机(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>搜索网络(&amp;S)</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>在本地网络中查找打印机</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>关于网络打印机(&amp;A)...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>如何连接网络打印机并找到其地址</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>打印机当前未连接：自行选择端口(&amp;C)</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>打印机图片</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>打印机端口</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>请选择打印机要使用的端口。对于网络打印机或文件，请双击其条目（或按 F2）并输入地址，例如 socket://192.168.1.20。</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>端口(&amp;P)：</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>打印机端口列表</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>打印机型号</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>请选择您的打印机型号。列表中显示的是此软件包的驱动程序。</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>打印机型号(&amp;M)：</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>打印机型号列表</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>打印服务没有响应</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>重新获取打印机型号</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>打印机名称</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>请为打印机取一个简短的名称（字母、数字和下划线）。位置和描述是可选的，可帮助他人找到这台打印机。</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>打印机名称(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>位置(&amp;L)：</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>例如：2.14 室</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>描述(&amp;D)：</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>例如：窗边的激光打印机</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>打印机已添加</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>打印机已可以使用。</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;打印机 &lt;b&gt;%1&lt;/b&gt; 已添加。&lt;/p&gt;%4&lt;p&gt;型号：%2&lt;br&gt;端口：%3&lt;/p&gt;&lt;p&gt;请打印测试页以检查一切是否正常，或调整驱动程序选项。单击&lt;b&gt;完成&lt;/b&gt;关闭向导。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>打印测试页(&amp;T)</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>驱动程序选项(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>改为输入地址(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>取消测试页(&amp;C)</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>未找到网页浏览器。
请使用此地址：
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>启动 %1 时出错</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>正在处理</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>状态未知</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>正在接受作业</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>正在拒绝作业</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>身份验证已取消</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>%1 上的打印服务没有响应</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 无权更改这台计算机的打印机。管理员的用户名和密码：</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>请检查打印机是否已开启并与本计算机连接到同一网络，以及是否有防火墙阻止了多播 DNS（UDP 端口 5353）。</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>没有网络打印机响应。</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>未安装网络搜索（缺少 %1）。</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>网络搜索失败：%1。</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>未给出原因</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>PPD 是/否选项</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>选项 1 文本</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>选项 2 文本</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>无法打开 PPD 文件。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>无法将设置保存到 PPD 文件。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>“%1”的属性</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>%s 选项... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>驱动程序选项</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>PPD 数值选项</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>值：</translation>
    </message>
    <message>
        <source>min</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>max</source>
        <translation>最大</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>未选择选项</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1，存在冲突</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>未定义</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>您选择的 %n 个选项相互冲突。请先解决冲突再继续：
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>驱动程序配置</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>授权</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>此打印机已设置为“%1”。</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>打印机已响应，但未说明其型号。</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>打印机报告其型号为：%1。</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>打印机没有响应。请自行选择其驱动程序。</translation>
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
        <translation>并口</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 上一步(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>测试页</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>%1 的测试页</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>打印机测试页</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>打印机：</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>驱动程序：</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>连接：</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>计算机：</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>打印时间：</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>纸张：</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>如果您能读到这一页，说明打印机工作正常。两个边框都应完整，灰度色阶清晰可辨，颜色纯净。</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>2.14 室</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>演示用的回环打印机</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>副标题</translation>
    </message>
</context>
</TS>
