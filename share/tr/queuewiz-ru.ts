<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>Не удаётся запустить мастер: файл описания интерфейса повреждён.
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>Служба печати не смогла получить список драйверов: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Служба печати не отвечает</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>Принтер «%s» уже существует. Выберите другое имя.</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>Не удаётся проверить, свободно ли имя: %1. Повторите попытку.</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>Не удалось добавить принтер.</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>Не полностью созданный принтер удалён.</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>Теперь это принтер по умолчанию.</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>Не удалось сделать его принтером по умолчанию.</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>Не удалось установить размер бумаги %1; выберите его в параметрах драйвера.</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>Мастер добавления принтера</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>Принтер не установлен. Действительно прервать работу мастера?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s на %s</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>Неизвестная модель</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>НЕИЗВЕСТНО</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>Поиск службы печати...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (подключён по USB)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>Ожидание печати пробной страницы...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>Пробная страница напечатана.</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>Пробная страница не напечатана: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>Пробная страница ещё не напечатана: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>Пробная страница отменена.</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>Не удалось отменить пробную страницу: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>принтер остановлен</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>задание отменено</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>система печати прервала задание</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>задание задержано</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>служба печати не указала причину</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>Принтер не сообщил, что он умеет.</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>Добавить принтер</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>Вас приветствует мастер добавления принтера</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>Этот мастер за несколько шагов настроит новый принтер на этом компьютере.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Мастер спросит:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;как подключён принтер: кабелем, по сети или пока не подключён,&lt;/li&gt;&lt;li&gt;модель принтера, чтобы использовать подходящий драйвер,&lt;/li&gt;&lt;li&gt;имя нового принтера.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;Затем он добавит принтер, сделает его принтером по умолчанию и предложит напечатать пробную страницу.&lt;/p&gt;&lt;p&gt;Чтобы начать, нажмите &lt;b&gt;Далее&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>Подключение принтера</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>Выберите, как подключён принтер. Принтер, который ещё не подключён, можно настроить с портом, выбранным вручную.</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>Как подключён принтер?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>&amp;Локальный принтер (кабель USB или параллельный)</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Принтер:</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>Се&amp;тевой принтер</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>Найденный п&amp;ринтер:</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>&amp;Искать в сети</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>Искать принтеры в локальной сети</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>&amp;О сетевых принтерах...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>Как подключить сетевой принтер и узнать его адрес</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>Принтер сейчас не подключён: &amp;выбрать порт вручную</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>Изображение принтера</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>Порт принтера</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>Выберите порт, который будет использовать принтер. Для сетевого принтера или файла дважды щёлкните запись (или нажмите F2) и введите адрес, например socket://192.168.1.20.</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>&amp;Порты:</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>Порты принтера</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>Модель принтера</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>Выберите модель принтера. В списке показаны драйверы из этого пакета.</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>&amp;Модели принтеров:</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>Модели принтеров</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>Служба печати не отвечает</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>Снова получить список моделей принтеров</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>Имя принтера</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>Дайте принтеру короткое имя (буквы, цифры и подчёркивания). Расположение и описание необязательны и помогают другим найти принтер.</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>&amp;Имя принтера:</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Расположение:</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>например: Комната 2.14</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Описание:</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>например: Лазерный принтер у окна</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>Принтер добавлен</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>Принтер готов к работе.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Принтер &lt;b&gt;%1&lt;/b&gt; добавлен.&lt;/p&gt;%4&lt;p&gt;Модель: %2&lt;br&gt;Порт: %3&lt;/p&gt;&lt;p&gt;Напечатайте пробную страницу, чтобы убедиться, что всё работает, или настройте параметры драйвера. Нажмите &lt;b&gt;Завершить&lt;/b&gt;, чтобы закрыть мастер.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Напечатать про&amp;бную страницу</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>&amp;Параметры драйвера...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>&amp;Ввести адрес вручную</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>&amp;Отменить пробную страницу</translation>
    </message>
</context>
<context>
    <name>BrowserLauncher</name>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Web browser not found.
Use that address:
%1</source>
        <translation>Веб-браузер не найден.
Используйте этот адрес:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>Ошибка запуска %1</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>простаивает</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>печатает</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>остановлен</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>состояние неизвестно</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>принимает задания</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>отклоняет задания</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>Аутентификация отменена</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>Служба печати на %1 не отвечает</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 не может изменять принтеры этого компьютера. Имя и пароль администратора:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>Проверьте, что принтер включён и подключён к той же сети, что и этот компьютер, и что брандмауэр не блокирует multicast DNS (UDP-порт 5353).</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>Ни один сетевой принтер не ответил.</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>Поиск в сети не установлен (отсутствует %1).</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>Не удалось выполнить поиск в сети: %1.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>причина не указана</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>Параметр PPD «да/нет»</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>Текст варианта 1</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>Текст варианта 2</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>Не удаётся открыть файл PPD.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>Не удаётся сохранить настройки в файл PPD.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>Свойства «%1»</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>Параметры %s... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>Параметры драйвера</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>О&amp;тмена</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>Числовой параметр PPD</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Значение:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>мин.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>max</source>
        <translation>макс.</translation>
    </message>
</context>
<context>
    <name>PPDOptionView</name>
    <message>
        <source>No option selected</source>
        <translation>Параметр не выбран</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1, конфликт</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>Не задано</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>Выбран %n параметр, который вызывает конфликт. Устраните конфликт, прежде чем продолжить:
</numerusform>
            <numerusform>Выбрано %n параметра, которые конфликтуют друг с другом. Устраните конфликт, прежде чем продолжить:
</numerusform>
            <numerusform>Выбрано %n параметров, которые конфликтуют друг с другом. Устраните конфликт, прежде чем продолжить:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>Настройка драйвера</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>Авторизация</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>Этот принтер уже настроен как «%1».</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>Принтер ответил, но не сообщил свою модель.</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>Принтер сообщает, что он: %1.</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>Принтер не ответил. Выберите его драйвер вручную.</translation>
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
        <translation>Параллельный</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
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
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Назад</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Далее &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Завершить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>Пробная страница</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>Пробная страница для %1</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>Пробная страница принтера</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Принтер:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>Драйвер:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Подключение:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>Компьютер:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Напечатано:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Бумага:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>Если вы можете прочитать эту страницу, принтер работает. Обе рамки должны быть полными, градации серого — различимыми, а цвета — чистыми.</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>Комната 2.14</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>Принтер-заглушка (loopback) для демонстрации</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Подзаголовок</translation>
    </message>
</context>
</TS>
