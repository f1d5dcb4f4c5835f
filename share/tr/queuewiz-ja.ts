<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AddPrinterWizard</name>
    <message>
        <source>Error!</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The wizard can&apos;t start: its form file is damaged.
%1</source>
        <translation>ウィザードを起動できません: 画面定義ファイルが壊れています。
%1</translation>
    </message>
    <message>
        <source>The printing service could not list the drivers: %1</source>
        <translation>印刷サービスがドライバーの一覧を取得できませんでした: %1</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>印刷サービスが応答しません</translation>
    </message>
    <message>
        <source>Printer &apos;%s&apos; already exists! Choose another name.</source>
        <translation>プリンター「%s」はすでに存在します。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>Can&apos;t check whether the name is free: %1. Try again.</source>
        <translation>名前が使用可能かどうかを確認できません: %1。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Can&apos;t add printer!</source>
        <translation>プリンターを追加できませんでした。</translation>
    </message>
    <message>
        <source>The incomplete printer was removed again.</source>
        <translation>不完全なプリンターは削除されました。</translation>
    </message>
    <message>
        <source>It is now your default printer.</source>
        <translation>このプリンターがデフォルトのプリンターになりました。</translation>
    </message>
    <message>
        <source>It could not be made your default printer.</source>
        <translation>デフォルトのプリンターに設定できませんでした。</translation>
    </message>
    <message>
        <source>Its paper size could not be set to %1; choose it in the driver options.</source>
        <translation>用紙サイズを %1 に設定できませんでした。ドライバーのオプションで選択してください。</translation>
    </message>
    <message>
        <source>Add printer Wizard</source>
        <translation>プリンター追加ウィザード</translation>
    </message>
    <message>
        <source>Printer is not installed. Are you sure to cancel wizard?</source>
        <translation>プリンターはまだインストールされていません。ウィザードを中止してもよろしいですか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>%s on %s</source>
        <translation>%s (%s)</translation>
    </message>
    <message>
        <source>Unknown model</source>
        <translation>不明なモデル</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Looking for the printing service...</source>
        <translation>印刷サービスを探しています...</translation>
    </message>
    <message>
        <source>%1 (connected by USB)</source>
        <translation>%1 (USB 接続)</translation>
    </message>
    <message>
        <source>Waiting for the test page to print...</source>
        <translation>テストページの印刷を待っています...</translation>
    </message>
    <message>
        <source>The test page has been printed.</source>
        <translation>テストページが印刷されました。</translation>
    </message>
    <message>
        <source>The test page did not print: %1</source>
        <translation>テストページは印刷されませんでした: %1</translation>
    </message>
    <message>
        <source>The test page has not printed yet: %1</source>
        <translation>テストページはまだ印刷されていません: %1</translation>
    </message>
    <message>
        <source>The test page was canceled.</source>
        <translation>テストページは取り消されました。</translation>
    </message>
    <message>
        <source>The test page could not be canceled: %1</source>
        <translation>テストページを取り消せませんでした: %1</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>プリンターが停止しています</translation>
    </message>
    <message>
        <source>the job was canceled</source>
        <translation>ジョブは取り消されました</translation>
    </message>
    <message>
        <source>the printing system gave up on the job</source>
        <translation>印刷システムがジョブを中止しました</translation>
    </message>
    <message>
        <source>the job is held</source>
        <translation>ジョブは保留されています</translation>
    </message>
    <message>
        <source>the printing service gave no reason</source>
        <translation>印刷サービスは理由を示しませんでした</translation>
    </message>
    <message>
        <source>The printer did not say what it can do.</source>
        <translation>プリンターが対応機能を返しませんでした。</translation>
    </message>
</context>
<context>
    <name>AddPrinterWizardBase</name>
    <message>
        <source>Add Printer</source>
        <translation>プリンターの追加</translation>
    </message>
    <message>
        <source>Welcome to the Add Printer Wizard</source>
        <translation>プリンター追加ウィザードへようこそ</translation>
    </message>
    <message>
        <source>This wizard sets up a new printer on this computer in a few steps.</source>
        <translation>このウィザードでは、いくつかの手順でこのコンピューターに新しいプリンターを設定します。</translation>
    </message>
    <message>
        <source>&lt;p&gt;The wizard will ask you for:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;how the printer is attached: by cable, over the network, or not yet connected,&lt;/li&gt;&lt;li&gt;the printer model, so that the right driver is used,&lt;/li&gt;&lt;li&gt;a name for the new printer.&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;It then adds the printer, makes it your default printer and lets you print a test page.&lt;/p&gt;&lt;p&gt;Click &lt;b&gt;Next&lt;/b&gt; to begin.&lt;/p&gt;</source>
        <translation>&lt;p&gt;ウィザードでは次のことを尋ねます:&lt;/p&gt;&lt;ol&gt;&lt;li&gt;プリンターの接続方法 (ケーブル、ネットワーク、またはまだ接続していない)、&lt;/li&gt;&lt;li&gt;正しいドライバーを使うためのプリンターのモデル、&lt;/li&gt;&lt;li&gt;新しいプリンターの名前。&lt;/li&gt;&lt;/ol&gt;&lt;p&gt;その後、プリンターを追加してデフォルトのプリンターに設定し、テストページを印刷できるようにします。&lt;/p&gt;&lt;p&gt;&lt;b&gt;次へ&lt;/b&gt;をクリックして開始してください。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Printer Connection</source>
        <translation>プリンターの接続</translation>
    </message>
    <message>
        <source>Choose how the printer is attached. A printer that is not plugged in yet can be set up with a port you choose yourself.</source>
        <translation>プリンターの接続方法を選んでください。まだ接続していないプリンターは、自分で選んだポートで設定できます。</translation>
    </message>
    <message>
        <source>How is the printer attached?</source>
        <translation>プリンターはどのように接続されていますか?</translation>
    </message>
    <message>
        <source>&amp;Local printer, attached by USB or parallel cable</source>
        <translation>ローカルプリンター (USB またはパラレルケーブルで接続)(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>プリンター(&amp;P):</translation>
    </message>
    <message>
        <source>Net&amp;work printer</source>
        <translation>ネットワークプリンター(&amp;W)</translation>
    </message>
    <message>
        <source>P&amp;rinter found:</source>
        <translation>見つかったプリンター(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Search Network</source>
        <translation>ネットワークを検索(&amp;S)</translation>
    </message>
    <message>
        <source>Look for printers on the local network</source>
        <translation>ローカルネットワーク上のプリンターを探します</translation>
    </message>
    <message>
        <source>&amp;About Network Printers...</source>
        <translation>ネットワークプリンターについて(&amp;A)...</translation>
    </message>
    <message>
        <source>How to connect a network printer and find its address</source>
        <translation>ネットワークプリンターの接続方法とアドレスの調べ方</translation>
    </message>
    <message>
        <source>Printer not &amp;connected now: choose the port yourself</source>
        <translation>今は接続していない: ポートを自分で選ぶ(&amp;C)</translation>
    </message>
    <message>
        <source>Printer picture</source>
        <translation>プリンターの画像</translation>
    </message>
    <message>
        <source>Printer Port</source>
        <translation>プリンターのポート</translation>
    </message>
    <message>
        <source>Choose the port the printer will use. For a network printer or a file, double-click its entry (or press F2) and type the address, for example socket://192.168.1.20.</source>
        <translation>プリンターが使うポートを選んでください。ネットワークプリンターやファイルの場合は、項目をダブルクリック (または F2 キーを押して) してアドレスを入力します。例: socket://192.168.1.20。</translation>
    </message>
    <message>
        <source>&amp;Ports:</source>
        <translation>ポート(&amp;P):</translation>
    </message>
    <message>
        <source>Printer ports</source>
        <translation>プリンターのポート一覧</translation>
    </message>
    <message>
        <source>Printer Model</source>
        <translation>プリンターのモデル</translation>
    </message>
    <message>
        <source>Choose the model of your printer. The list shows the drivers of this package.</source>
        <translation>お使いのプリンターのモデルを選んでください。一覧にはこのパッケージのドライバーが表示されます。</translation>
    </message>
    <message>
        <source>Printer &amp;models:</source>
        <translation>プリンターのモデル(&amp;M):</translation>
    </message>
    <message>
        <source>Printer models</source>
        <translation>プリンターのモデル一覧</translation>
    </message>
    <message>
        <source>The printing service does not answer</source>
        <translation>印刷サービスが応答しません</translation>
    </message>
    <message>
        <source>Fetch the printer models again</source>
        <translation>プリンターのモデルを再取得します</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Printer Name</source>
        <translation>プリンターの名前</translation>
    </message>
    <message>
        <source>Give the printer a short name (letters, digits and underscores). Location and description are optional and help others find it.</source>
        <translation>プリンターに短い名前を付けてください (英字、数字、アンダースコア)。場所と説明は省略可能で、他の人がプリンターを見つける助けになります。</translation>
    </message>
    <message>
        <source>Printer n&amp;ame:</source>
        <translation>プリンター名(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>場所(&amp;L):</translation>
    </message>
    <message>
        <source>for example: Room 2.14</source>
        <translation>例: 2.14 号室</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>説明(&amp;D):</translation>
    </message>
    <message>
        <source>for example: Laser printer by the window</source>
        <translation>例: 窓際のレーザープリンター</translation>
    </message>
    <message>
        <source>Printer Added</source>
        <translation>プリンターを追加しました</translation>
    </message>
    <message>
        <source>The printer is ready to use.</source>
        <translation>プリンターを使用する準備ができました。</translation>
    </message>
    <message>
        <source>&lt;p&gt;The printer &lt;b&gt;%1&lt;/b&gt; has been added.&lt;/p&gt;%4&lt;p&gt;Model: %2&lt;br&gt;Port: %3&lt;/p&gt;&lt;p&gt;Print a test page to check that everything works, or adjust the driver options. Click &lt;b&gt;Finish&lt;/b&gt; to close the wizard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;プリンター &lt;b&gt;%1&lt;/b&gt; を追加しました。&lt;/p&gt;%4&lt;p&gt;モデル: %2&lt;br&gt;ポート: %3&lt;/p&gt;&lt;p&gt;テストページを印刷して正しく動作するか確認するか、ドライバーのオプションを調整してください。&lt;b&gt;完了&lt;/b&gt;をクリックするとウィザードを閉じます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>テストページを印刷(&amp;T)</translation>
    </message>
    <message>
        <source>Driver &amp;Options...</source>
        <translation>ドライバーのオプション(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Type the Address Instead</source>
        <translation>代わりにアドレスを入力(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel Test Page</source>
        <translation>テストページを取り消す(&amp;C)</translation>
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
        <translation>Web ブラウザーが見つかりません。
次のアドレスを使用してください:
%1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Error starting %1</source>
        <translation>%1 の起動エラー</translation>
    </message>
</context>
<context>
    <name>CUPSPrinter</name>
    <message>
        <source>idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>状態不明</translation>
    </message>
    <message>
        <source>accepting jobs</source>
        <translation>ジョブを受け付け中</translation>
    </message>
    <message>
        <source>rejecting jobs</source>
        <translation>ジョブを拒否中</translation>
    </message>
</context>
<context>
    <name>IPPRequest</name>
    <message>
        <source>Authentication cancelled</source>
        <translation>認証がキャンセルされました</translation>
    </message>
    <message>
        <source>The printing service at %1 does not answer</source>
        <translation>%1 の印刷サービスが応答しません</translation>
    </message>
    <message>
        <source>%1 may not change the printers of this computer. Name and password of an administrator:</source>
        <translation>%1 はこのコンピューターのプリンターを変更できません。管理者の名前とパスワード:</translation>
    </message>
</context>
<context>
    <name>NetworkSearchNote</name>
    <message>
        <source>Check that the printer is switched on and connected to the same network as this computer, and that no firewall blocks multicast DNS (UDP port 5353).</source>
        <translation>プリンターの電源が入っていて、このコンピューターと同じネットワークに接続されていること、またファイアウォールがマルチキャスト DNS (UDP ポート 5353) をブロックしていないことを確認してください。</translation>
    </message>
    <message>
        <source>No network printer answered.</source>
        <translation>応答したネットワークプリンターはありません。</translation>
    </message>
    <message>
        <source>The network search is not installed (%1 is missing).</source>
        <translation>ネットワーク検索がインストールされていません (%1 がありません)。</translation>
    </message>
    <message>
        <source>The network search failed: %1.</source>
        <translation>ネットワーク検索に失敗しました: %1。</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>理由は示されていません</translation>
    </message>
</context>
<context>
    <name>PPDBooleanViewBase</name>
    <message>
        <source>PPD Boolean Option</source>
        <translation>PPD の有効/無効オプション</translation>
    </message>
    <message>
        <source>Choice1 text</source>
        <translation>選択肢 1 のテキスト</translation>
    </message>
    <message>
        <source>Choice2 text</source>
        <translation>選択肢 2 のテキスト</translation>
    </message>
</context>
<context>
    <name>PPDDialog</name>
    <message>
        <source>Error!</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Can&apos;t open PPD file!</source>
        <translation>PPD ファイルを開けません。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Can&apos;t save results to PPD file!</source>
        <translation>PPD ファイルに設定を保存できません。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; Properties</source>
        <translation>「%1」のプロパティ</translation>
    </message>
</context>
<context>
    <name>PPDDialogBase</name>
    <message>
        <source>%s options... </source>
        <translation>%s のオプション... </translation>
    </message>
    <message>
        <source>Driver options</source>
        <translation>ドライバーのオプション</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PPDNumericViewBase</name>
    <message>
        <source>PPD Numeric Option</source>
        <translation>PPD の数値オプション</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>値:</translation>
    </message>
    <message>
        <source>min</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
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
        <translation>オプションが選択されていません</translation>
    </message>
</context>
<context>
    <name>PPDTree::BaseItem</name>
    <message>
        <source>%1, in conflict</source>
        <translation>%1、競合あり</translation>
    </message>
</context>
<context>
    <name>PPDTree::OptionItem</name>
    <message>
        <source>Undefined</source>
        <translation>未定義</translation>
    </message>
</context>
<context>
    <name>PPDTreeView</name>
    <message numerus="yes">
        <source>You selected %n options that are in conflict. Resolve the conflict before you continue:
</source>
        <translation>
            <numerusform>競合するオプションが %n 個選択されています。続ける前に競合を解消してください:
</numerusform>
        </translation>
    </message>
    <message>
        <source>Driver configuration</source>
        <translation>ドライバーの設定</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Authorization</source>
        <translation>認証</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
</context>
<context>
    <name>PortStep</name>
    <message>
        <source>This printer is already set up as &apos;%1&apos;.</source>
        <translation>このプリンターはすでに「%1」として設定されています。</translation>
    </message>
    <message>
        <source>The printer answered but did not say its model.</source>
        <translation>プリンターは応答しましたが、モデルを返しませんでした。</translation>
    </message>
    <message>
        <source>The printer says it is: %1.</source>
        <translation>プリンターの応答: %1。</translation>
    </message>
    <message>
        <source>The printer did not answer. Choose its driver yourself.</source>
        <translation>プリンターが応答しませんでした。ドライバーを自分で選んでください。</translation>
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
        <translation>パラレル</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
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
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>次へ(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>TestSheet</name>
    <message>
        <source>Test page</source>
        <translation>テストページ</translation>
    </message>
    <message>
        <source>Test page for %1</source>
        <translation>%1 のテストページ</translation>
    </message>
    <message>
        <source>Printer test page</source>
        <translation>プリンターのテストページ</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>プリンター:</translation>
    </message>
    <message>
        <source>Driver:</source>
        <translation>ドライバー:</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>接続:</translation>
    </message>
    <message>
        <source>Computer:</source>
        <translation>コンピューター:</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>印刷日時:</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>用紙:</translation>
    </message>
    <message>
        <source>If you can read this page, the printer works. Both frames should be complete, the grey steps distinct and the colours clean.</source>
        <translation>このページが読めれば、プリンターは動作しています。2 つの枠がすべて印刷され、灰色の段階がはっきり区別でき、色がきれいに出ていることを確認してください。</translation>
    </message>
</context>
<context>
    <name>TourGuide</name>
    <message>
        <source>Room 2.14</source>
        <translation>2.14 号室</translation>
    </message>
    <message>
        <source>The loopback printer of the demo</source>
        <translation>デモ用のループバックプリンター</translation>
    </message>
</context>
<context>
    <name>WizardPageTitleBase</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>サブタイトル</translation>
    </message>
</context>
</TS>
