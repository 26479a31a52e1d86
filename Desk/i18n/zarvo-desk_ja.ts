<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
  <context>
    <name>desk</name>
    <message>
      <source> (gone)</source>
      <translation>（なくなりました）</translation>
    </message>
    <message>
      <source> (stopped)</source>
      <translation>（停止中）</translation>
    </message>
    <message>
      <source> (takes no jobs)</source>
      <translation>（ジョブを受け付けません）</translation>
    </message>
    <message>
      <source> g/m²</source>
      <translation> g/m²</translation>
    </message>
    <message>
      <source> points</source>
      <translation> ポイント</translation>
    </message>
    <message>
      <source>"None" and what begins with "Custom." mean something else to dialogs</source>
      <translation>「None」と「Custom.」で始まる名前は、印刷ダイアログでは別の意味になります</translation>
    </message>
    <message>
      <source>"lpstat -e" lists the queues</source>
      <translation>プリンターの一覧は「lpstat -e」で確認できます</translation>
    </message>
    <message>
      <source>"lpstat -o" lists it, with 0 bytes if the document is missing</source>
      <translation>「lpstat -o」に表示されます。文書が届いていなければ 0 バイトです</translation>
    </message>
    <message>
      <source>"zarvo watermark list" shows them</source>
      <translation>"zarvo watermark list" で一覧できます</translation>
    </message>
    <message>
      <source>%1 "%2" was left out: the store has none of that name</source>
      <translation>%1「%2」は省かれました: その名前のものは保存されていません</translation>
    </message>
    <message>
      <source>%1 (by itself: %2)</source>
      <translation>%1 (通常は %2)</translation>
    </message>
    <message>
      <source>%1 (group)</source>
      <translation>%1（グループ）</translation>
    </message>
    <message>
      <source>%1 (not stored here)</source>
      <translation>%1（ここにはありません）</translation>
    </message>
    <message>
      <source>%1 and nothing else; choose another one</source>
      <translation>%1（それ以外は使えません）。別のものにしてください</translation>
    </message>
    <message>
      <source>%1 cannot be read, or is damaged. "zarvo doctor" tells more.</source>
      <translation>%1 を読み取れないか、壊れています。詳しくは「zarvo doctor」で確認できます。</translation>
    </message>
    <message>
      <source>%1 cannot be read.</source>
      <translation>%1 を読み込めません。</translation>
    </message>
    <message>
      <source>%1 cannot keep a PIN; choose JobType=Secure, or leave the PIN out</source>
      <translation>%1は暗証番号を保持できません。セキュリティープリント (JobType=Secure) を選ぶか、暗証番号を外してください</translation>
    </message>
    <message>
      <source>%1 copies</source>
      <translation>%1 部</translation>
    </message>
    <message>
      <source>%1 does not take "%2".</source>
      <translation>%1 に「%2」は使えません。</translation>
    </message>
    <message>
      <source>%1 g/m²</source>
      <translation>%1 g/m²</translation>
    </message>
    <message>
      <source>%1 is no group of settings; send the job type as ..d_JobType..n=NUMBER</source>
      <translation>%1 は設定のグループではありません。ジョブの種類は ..d_JobType..n=番号 で送ってください</translation>
    </message>
    <message>
      <source>%1 is out of range</source>
      <translation>%1 は範囲外です</translation>
    </message>
    <message>
      <source>%1 job envelopes: the printer takes it for as many jobs and starts anew at each</source>
      <translation>ジョブの枠が %1 個あります。プリンターはその数のジョブとみなし、それぞれ最初から始めます</translation>
    </message>
    <message>
      <source>%1 sheets after page %2</source>
      <translation>%2 ページの後に %1 枚</translation>
    </message>
    <message>
      <source>%1, number %2: %3</source>
      <translation>%1、%2 番目: %3</translation>
    </message>
    <message>
      <source>%1: house ticket "%2" does not let jobs change it, it was left as it is there</source>
      <translation>%1: 登録済み設定「%2」では変更できないため、登録どおりにしました</translation>
    </message>
    <message>
      <source>%1: the job type is no number; send it as ..d_JobType..n=NUMBER</source>
      <translation>%1: ジョブの種類が数値ではありません。..d_JobType..n=番号 で送ってください</translation>
    </message>
    <message numerus="yes">
      <source>%n card(s) of the address book cannot be read: %1</source>
      <translation>
        <numerusform>アドレス帳のカード %n 件を読み取れません: %1</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n copies</source>
      <translation>
        <numerusform>%n 部</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s)</source>
      <translation>
        <numerusform>%n ページ</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n page(s) cannot be drawn; there may be no room left for temporary files.</source>
      <translation>
        <numerusform>%n ページを描画できません。一時ファイルの空き容量が足りない可能性があります。</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet side(s)</source>
      <translation>
        <numerusform>用紙 %n 面</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s)</source>
      <translation>
        <numerusform>用紙 %n 枚</numerusform>
      </translation>
    </message>
    <message numerus="yes">
      <source>%n sheet(s) after page %1</source>
      <translation>
        <numerusform>%1 ページの後に %n 枚</numerusform>
      </translation>
    </message>
    <message>
      <source>&amp;All sheets</source>
      <translation>すべての用紙(&amp;A)</translation>
    </message>
    <message>
      <source>&amp;Edit</source>
      <translation>編集(&amp;E)</translation>
    </message>
    <message>
      <source>&amp;File</source>
      <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
      <source>&amp;Larger</source>
      <translation>拡大(&amp;L)</translation>
    </message>
    <message>
      <source>&amp;New settings</source>
      <translation>新しい設定(&amp;N)</translation>
    </message>
    <message>
      <source>&amp;One side</source>
      <translation>1 面(&amp;O)</translation>
    </message>
    <message>
      <source>&amp;Open…</source>
      <translation>開く(&amp;O)…</translation>
    </message>
    <message>
      <source>&amp;Print</source>
      <translation>印刷(&amp;P)</translation>
    </message>
    <message>
      <source>&amp;Quit</source>
      <translation>終了(&amp;Q)</translation>
    </message>
    <message>
      <source>&amp;Recent documents</source>
      <translation>最近使った文書(&amp;R)</translation>
    </message>
    <message>
      <source>&amp;Redo</source>
      <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
      <source>&amp;Show staples, holes and folds</source>
      <translation>ステープル・穴・折りを表示(&amp;S)</translation>
    </message>
    <message>
      <source>&amp;Smaller</source>
      <translation>縮小(&amp;S)</translation>
    </message>
    <message>
      <source>&amp;Undo</source>
      <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
      <source>&amp;View</source>
      <translation>表示(&amp;V)</translation>
    </message>
    <message>
      <source>/10 points</source>
      <translation>/10 ポイント</translation>
    </message>
    <message>
      <source>1 sheet after page %1</source>
      <translation>%1 ページの後に 1 枚</translation>
    </message>
    <message>
      <source>4 to 10 digits</source>
      <translation>4～10 桁の数字</translation>
    </message>
    <message>
      <source>A text of one's own</source>
      <translation>自分で入力した文</translation>
    </message>
    <message>
      <source>Abort</source>
      <translation>中止</translation>
    </message>
    <message>
      <source>Account for it</source>
      <translation>課金方法</translation>
    </message>
    <message>
      <source>Account in the XML ticket</source>
      <translation>XML チケットのアカウント</translation>
    </message>
    <message>
      <source>Accounting in the XML ticket, on only in mode "user-and-account"</source>
      <translation>XML チケットの課金（「ユーザーとアカウント」のときだけ）</translation>
    </message>
    <message>
      <source>Accounting mode</source>
      <translation>課金の方式</translation>
    </message>
    <message>
      <source>Accounting user in the XML ticket</source>
      <translation>XML チケットの課金ユーザー</translation>
    </message>
    <message>
      <source>Add from the address book</source>
      <translation>アドレス帳から追加</translation>
    </message>
    <message>
      <source>Add this number</source>
      <translation>この番号を追加</translation>
    </message>
    <message>
      <source>Additional accounting data</source>
      <translation>追加の課金データ</translation>
    </message>
    <message>
      <source>Address book</source>
      <translation>アドレス帳</translation>
    </message>
    <message>
      <source>Address-book record</source>
      <translation>アドレス帳の項目</translation>
    </message>
    <message>
      <source>After page</source>
      <translation>このページの後</translation>
    </message>
    <message>
      <source>All</source>
      <translation>すべて</translation>
    </message>
    <message>
      <source>All files</source>
      <translation>すべてのファイル</translation>
    </message>
    <message>
      <source>All settings</source>
      <translation>すべての設定</translation>
    </message>
    <message>
      <source>Angle</source>
      <translation>角度</translation>
    </message>
    <message>
      <source>As a &amp;reader</source>
      <translation>読者の見方(&amp;R)</translation>
    </message>
    <message>
      <source>As the job</source>
      <translation>ジョブと同じ</translation>
    </message>
    <message>
      <source>As the printer does</source>
      <translation>プリンターの設定どおり</translation>
    </message>
    <message>
      <source>As they are</source>
      <translation>そのまま</translation>
    </message>
    <message>
      <source>At the bottom</source>
      <translation>下</translation>
    </message>
    <message>
      <source>At the left</source>
      <translation>左</translation>
    </message>
    <message>
      <source>At the printer choose this job and type the PIN.</source>
      <translation>プリンターでこのジョブを選び、暗証番号を入力してください。</translation>
    </message>
    <message>
      <source>At the right</source>
      <translation>右</translation>
    </message>
    <message>
      <source>At the top</source>
      <translation>上</translation>
    </message>
    <message>
      <source>Back printed</source>
      <translation>裏面に印刷</translation>
    </message>
    <message>
      <source>Background forms</source>
      <translation>背景フォーム</translation>
    </message>
    <message>
      <source>Balance from cyan to red</source>
      <translation>シアンから赤へのバランス</translation>
    </message>
    <message>
      <source>Balance from magenta to green</source>
      <translation>マゼンタから緑へのバランス</translation>
    </message>
    <message>
      <source>Balance from yellow to blue</source>
      <translation>黄から青へのバランス</translation>
    </message>
    <message>
      <source>Banner page</source>
      <translation>バナーページ</translation>
    </message>
    <message>
      <source>Billing code, up to 16 bytes</source>
      <translation>課金コード（16 バイトまで）</translation>
    </message>
    <message>
      <source>Binding choice</source>
      <translation>製本の位置</translation>
    </message>
    <message>
      <source>Black</source>
      <translation>黒</translation>
    </message>
    <message>
      <source>Black and gray</source>
      <translation>白黒</translation>
    </message>
    <message>
      <source>Black overprint off</source>
      <translation>黒のオーバープリントなし</translation>
    </message>
    <message>
      <source>Black overprint on</source>
      <translation>黒のオーバープリントあり</translation>
    </message>
    <message>
      <source>Black printed over colours</source>
      <translation>黒を色の上に重ねる</translation>
    </message>
    <message>
      <source>Blank sheets</source>
      <translation>白紙</translation>
    </message>
    <message>
      <source>Blue of a custom colour</source>
      <translation>ユーザー定義色の青</translation>
    </message>
    <message>
      <source>Booklet on the job's stock size</source>
      <translation>用紙のサイズで小冊子にする</translation>
    </message>
    <message>
      <source>Booklet, read from left to right</source>
      <translation>小冊子（左から右へ読む）</translation>
    </message>
    <message>
      <source>Booklet, read from right to left</source>
      <translation>小冊子（右から左へ読む）</translation>
    </message>
    <message>
      <source>Both</source>
      <translation>両方</translation>
    </message>
    <message>
      <source>Both sides printed</source>
      <translation>両面に印刷</translation>
    </message>
    <message>
      <source>Both sides, turned like a book</source>
      <translation>両面（本のようにめくる）</translation>
    </message>
    <message>
      <source>Both sides, turned like a calendar</source>
      <translation>両面（カレンダーのようにめくる）</translation>
    </message>
    <message>
      <source>Both sides, turned over the long edge</source>
      <translation>両面（長辺とじ）</translation>
    </message>
    <message>
      <source>Both sides, turned over the short edge</source>
      <translation>両面（短辺とじ）</translation>
    </message>
    <message>
      <source>Bound at the left</source>
      <translation>左とじ</translation>
    </message>
    <message>
      <source>Bound at the right</source>
      <translation>右とじ</translation>
    </message>
    <message>
      <source>Brown</source>
      <translation>茶</translation>
    </message>
    <message>
      <source>By user and account</source>
      <translation>ユーザーとアカウント別</translation>
    </message>
    <message>
      <source>By user and general account</source>
      <translation>ユーザーと一般アカウント別</translation>
    </message>
    <message>
      <source>By user and group account</source>
      <translation>ユーザーとグループアカウント別</translation>
    </message>
    <message>
      <source>Cardinal</source>
      <translation>深紅</translation>
    </message>
    <message>
      <source>Choose a watermark first.</source>
      <translation>先にウォーターマークを選んでください。</translation>
    </message>
    <message>
      <source>Choose first what is other than for the job.</source>
      <translation>先にジョブと異なる設定を選んでください。</translation>
    </message>
    <message>
      <source>Choose one in the list first.</source>
      <translation>先に一覧から選んでください。</translation>
    </message>
    <message>
      <source>Choose one of the pictures first.</source>
      <translation>先に画像を 1 つ選んでください。</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>閉じる</translation>
    </message>
    <message>
      <source>Coarse</source>
      <translation>粗い</translation>
    </message>
    <message>
      <source>Coating, back</source>
      <translation>コーティング（裏）</translation>
    </message>
    <message>
      <source>Coating, front</source>
      <translation>コーティング（表）</translation>
    </message>
    <message>
      <source>Collated</source>
      <translation>部単位</translation>
    </message>
    <message>
      <source>Color to highlight</source>
      <translation>色を強調色に</translation>
    </message>
    <message>
      <source>Colorant</source>
      <translation>色材</translation>
    </message>
    <message>
      <source>Colour</source>
      <translation>カラー</translation>
    </message>
    <message>
      <source>Colour and quality</source>
      <translation>カラーと品質</translation>
    </message>
    <message>
      <source>Colour of the separators</source>
      <translation>合紙の色</translation>
    </message>
    <message>
      <source>Colour of transparency separators</source>
      <translation>OHP 合紙の色</translation>
    </message>
    <message>
      <source>Colour or grayscale</source>
      <translation>カラーまたはグレースケール</translation>
    </message>
    <message>
      <source>Colour settings</source>
      <translation>カラー設定</translation>
    </message>
    <message>
      <source>Colour that is mapped to it</source>
      <translation>割り当てる色</translation>
    </message>
    <message>
      <source>Company</source>
      <translation>会社</translation>
    </message>
    <message>
      <source>Converting</source>
      <translation>変換中</translation>
    </message>
    <message>
      <source>Copies</source>
      <translation>部数</translation>
    </message>
    <message>
      <source>Copies and pages</source>
      <translation>部数とページ</translation>
    </message>
    <message>
      <source>Correct them, or give --force to print it all the same</source>
      <translation>設定を直すか、このまま印刷してください</translation>
    </message>
    <message>
      <source>Corvanta180 adjustable</source>
      <translation>Corvanta180（調整可）</translation>
    </message>
    <message>
      <source>Cover</source>
      <translation>表紙</translation>
    </message>
    <message>
      <source>Cover sheet</source>
      <translation>送付状</translation>
    </message>
    <message>
      <source>Covers</source>
      <translation>表紙</translation>
    </message>
    <message>
      <source>Covers and pages</source>
      <translation>表紙とページ</translation>
    </message>
    <message>
      <source>Creep for each sheet</source>
      <translation>1 枚ごとのずれ補正</translation>
    </message>
    <message>
      <source>Creep for each sheet, 1/10 point</source>
      <translation>1 枚あたりのクリープ（1/10 ポイント）</translation>
    </message>
    <message>
      <source>Custom %1</source>
      <translation>カスタム %1</translation>
    </message>
    <message>
      <source>Custom colour as RGB, else as HSV</source>
      <translation>ユーザー定義色を RGB で指定（それ以外は HSV）</translation>
    </message>
    <message>
      <source>Cyan</source>
      <translation>シアン</translation>
    </message>
    <message>
      <source>Cyan to red</source>
      <translation>シアン～赤</translation>
    </message>
    <message>
      <source>Darkness</source>
      <translation>濃度</translation>
    </message>
    <message>
      <source>Darkness of another printer</source>
      <translation>別のプリンターの濃度</translation>
    </message>
    <message>
      <source>Delivery</source>
      <translation>排紙</translation>
    </message>
    <message>
      <source>Description</source>
      <translation>説明</translation>
    </message>
    <message>
      <source>Destination profile, back</source>
      <translation>出力プロファイル（裏）</translation>
    </message>
    <message>
      <source>Destination profile, front</source>
      <translation>出力プロファイル（表）</translation>
    </message>
    <message>
      <source>Destination profile: a code or a name</source>
      <translation>出力プロファイル（番号または名前）</translation>
    </message>
    <message>
      <source>Dialled before every number</source>
      <translation>各番号の前に付ける番号</translation>
    </message>
    <message>
      <source>Dialled before every number, up to 4 bytes</source>
      <translation>各番号の前にダイヤル（4 バイトまで）</translation>
    </message>
    <message>
      <source>Do not insert</source>
      <translation>挿入しない</translation>
    </message>
    <message>
      <source>Do this</source>
      <translation>処理</translation>
    </message>
    <message>
      <source>Document format</source>
      <translation>文書の形式</translation>
    </message>
    <message>
      <source>Documents and pictures</source>
      <translation>文書と画像</translation>
    </message>
    <message>
      <source>Drawing %v of %m</source>
      <translation>描画中 %v / %m</translation>
    </message>
    <message>
      <source>Drop a document here, or choose Open.</source>
      <translation>ここに文書をドロップするか、「開く」を選んでください。</translation>
    </message>
    <message>
      <source>E-mail address</source>
      <translation>メールアドレス</translation>
    </message>
    <message>
      <source>Each job</source>
      <translation>ジョブごと</translation>
    </message>
    <message>
      <source>Envelope c5</source>
      <translation>封筒 C5</translation>
    </message>
    <message>
      <source>Envelope dl</source>
      <translation>封筒 DL</translation>
    </message>
    <message>
      <source>Envelopes</source>
      <translation>封筒</translation>
    </message>
    <message>
      <source>Every section</source>
      <translation>すべてのセクション</translation>
    </message>
    <message>
      <source>Family name</source>
      <translation>姓</translation>
    </message>
    <message>
      <source>Fast reprint</source>
      <translation>高速再印刷</translation>
    </message>
    <message>
      <source>Fast reprint and dri</source>
      <translation>高速再印刷と DRI</translation>
    </message>
    <message>
      <source>Fax confirmation sheet</source>
      <translation>ファクス送信確認書</translation>
    </message>
    <message>
      <source>Fax cover sheet made by the printer</source>
      <translation>プリンターが作るファクス送付状</translation>
    </message>
    <message>
      <source>Fax number as typed</source>
      <translation>入力どおりのファクス番号</translation>
    </message>
    <message>
      <source>Fax recipients</source>
      <translation>ファックスの宛先</translation>
    </message>
    <message>
      <source>Fax to</source>
      <translation>ファクスの宛先</translation>
    </message>
    <message>
      <source>Fax to the mailbox</source>
      <translation>ファクスのボックス宛</translation>
    </message>
    <message>
      <source>Faxed after</source>
      <translation>ファクス送信時刻</translation>
    </message>
    <message>
      <source>Find a setting</source>
      <translation>設定を検索</translation>
    </message>
    <message>
      <source>Find one by its title</source>
      <translation>タイトルで検索</translation>
    </message>
    <message>
      <source>Finish</source>
      <translation>仕上げ</translation>
    </message>
    <message>
      <source>Finish of a booklet</source>
      <translation>小冊子の仕上げ</translation>
    </message>
    <message>
      <source>Finishing preset; it says which of the other finishing values count</source>
      <translation>仕上げのプリセット（他のどの仕上げ値が有効かを決めます）</translation>
    </message>
    <message>
      <source>Finishing template of the printer</source>
      <translation>プリンターの仕上げテンプレート</translation>
    </message>
    <message>
      <source>First page</source>
      <translation>最初のページ</translation>
    </message>
    <message>
      <source>Fold 1003 of the printer</source>
      <translation>プリンターの折り 1003</translation>
    </message>
    <message>
      <source>Fold 1004 of the printer</source>
      <translation>プリンターの折り 1004</translation>
    </message>
    <message>
      <source>Fold 1005 of the printer</source>
      <translation>プリンターの折り 1005</translation>
    </message>
    <message>
      <source>Fold 1008 of the printer</source>
      <translation>プリンターの折り 1008</translation>
    </message>
    <message>
      <source>Fold 1011 of the printer</source>
      <translation>プリンターの折り 1011</translation>
    </message>
    <message>
      <source>Fold 1012 of the printer</source>
      <translation>プリンターの折り 1012</translation>
    </message>
    <message>
      <source>Fold and staple in the fold</source>
      <translation>中とじ（折ってステープル）</translation>
    </message>
    <message>
      <source>Fold choice</source>
      <translation>折り方</translation>
    </message>
    <message>
      <source>Fold in the middle</source>
      <translation>中央で折る</translation>
    </message>
    <message>
      <source>Folded in the middle</source>
      <translation>中央で二つ折り</translation>
    </message>
    <message>
      <source>Folded in the middle and stapled there</source>
      <translation>中央で折って中とじ</translation>
    </message>
    <message>
      <source>Folded to a booklet</source>
      <translation>小冊子に折る</translation>
    </message>
    <message>
      <source>Folder</source>
      <translation>フォルダー</translation>
    </message>
    <message>
      <source>Folder at the printer</source>
      <translation>プリンターのフォルダー</translation>
    </message>
    <message>
      <source>Folder of the printer for a saved job</source>
      <translation>保存ジョブのプリンター内フォルダー</translation>
    </message>
    <message>
      <source>Forced 4800</source>
      <translation>4800 固定</translation>
    </message>
    <message>
      <source>Format</source>
      <translation>形式</translation>
    </message>
    <message>
      <source>Format of a saved job</source>
      <translation>保存ジョブの形式</translation>
    </message>
    <message>
      <source>Four holes</source>
      <translation>4 穴</translation>
    </message>
    <message>
      <source>Frame around each booklet page</source>
      <translation>小冊子の各ページに枠</translation>
    </message>
    <message>
      <source>Frame around each page</source>
      <translation>各ページを枠で囲む</translation>
    </message>
    <message>
      <source>Free description</source>
      <translation>自由な説明</translation>
    </message>
    <message>
      <source>From</source>
      <translation>差出人</translation>
    </message>
    <message>
      <source>From left to right</source>
      <translation>左から右</translation>
    </message>
    <message>
      <source>From right to left</source>
      <translation>右から左</translation>
    </message>
    <message>
      <source>Front</source>
      <translation>表</translation>
    </message>
    <message>
      <source>Front printed</source>
      <translation>表面に印刷</translation>
    </message>
    <message>
      <source>Further notes</source>
      <translation>その他のメモ</translation>
    </message>
    <message>
      <source>General account</source>
      <translation>一般アカウント</translation>
    </message>
    <message>
      <source>Ghostscript cannot draw the job: %1</source>
      <translation>Ghostscript がジョブを描画できません: %1</translation>
    </message>
    <message>
      <source>Given name</source>
      <translation>名</translation>
    </message>
    <message>
      <source>Glossy</source>
      <translation>光沢</translation>
    </message>
    <message>
      <source>Glue</source>
      <translation>糊とじ</translation>
    </message>
    <message>
      <source>Go to the printer %1, choose the job "%2" and type your PIN.</source>
      <translation>プリンター %1 でジョブ「%2」を選び、暗証番号を入力してください。</translation>
    </message>
    <message>
      <source>Grain</source>
      <translation>目</translation>
    </message>
    <message>
      <source>Grain direction</source>
      <translation>紙の目</translation>
    </message>
    <message>
      <source>Green of a custom colour</source>
      <translation>ユーザー定義色の緑</translation>
    </message>
    <message>
      <source>Group account</source>
      <translation>グループアカウント</translation>
    </message>
    <message>
      <source>Groups of settings</source>
      <translation>設定のグループ</translation>
    </message>
    <message>
      <source>HSV</source>
      <translation>HSV</translation>
    </message>
    <message>
      <source>Half Z fold</source>
      <translation>片 Z 折り</translation>
    </message>
    <message>
      <source>Half Z fold, other side</source>
      <translation>片 Z 折り（反対側）</translation>
    </message>
    <message>
      <source>Halftone of graphics</source>
      <translation>図形の網点</translation>
    </message>
    <message>
      <source>Halftone of images</source>
      <translation>画像の網点</translation>
    </message>
    <message>
      <source>Halftone of text</source>
      <translation>文字の網点</translation>
    </message>
    <message>
      <source>Halftone screen</source>
      <translation>網点スクリーン</translation>
    </message>
    <message>
      <source>Halftone; not sent to the printer</source>
      <translation>網点（プリンターには送られません）</translation>
    </message>
    <message>
      <source>Heading of the notes</source>
      <translation>メモの見出し</translation>
    </message>
    <message>
      <source>Heading of the recipients</source>
      <translation>宛先の見出し</translation>
    </message>
    <message>
      <source>Heading of the sender</source>
      <translation>送信者の見出し</translation>
    </message>
    <message>
      <source>Held until released</source>
      <translation>解除まで保留</translation>
    </message>
    <message>
      <source>High gloss</source>
      <translation>高光沢</translation>
    </message>
    <message>
      <source>Highlight colorant</source>
      <translation>強調色の色材</translation>
    </message>
    <message>
      <source>Highlight colour</source>
      <translation>強調色</translation>
    </message>
    <message>
      <source>Highlight mapping</source>
      <translation>強調色の割り当て</translation>
    </message>
    <message>
      <source>Highlighted colour</source>
      <translation>強調する色</translation>
    </message>
    <message>
      <source>Highlighted custom colour</source>
      <translation>強調するユーザー定義色</translation>
    </message>
    <message>
      <source>Hold</source>
      <translation>保留</translation>
    </message>
    <message>
      <source>Hold it at the printer</source>
      <translation>プリンターで保留</translation>
    </message>
    <message>
      <source>Holes</source>
      <translation>パンチ穴</translation>
    </message>
    <message>
      <source>Holes, folds and binding</source>
      <translation>穴・折り・とじ</translation>
    </message>
    <message>
      <source>House tickets</source>
      <translation>登録済み設定</translation>
    </message>
    <message>
      <source>How far the pages lie turned, for the watermark</source>
      <translation>ウォーターマークのためのページの回転</translation>
    </message>
    <message>
      <source>How it is sent</source>
      <translation>送信方法</translation>
    </message>
    <message>
      <source>How many</source>
      <translation>個数</translation>
    </message>
    <message>
      <source>Hue</source>
      <translation>色相</translation>
    </message>
    <message>
      <source>Hue of a custom colour</source>
      <translation>ユーザー定義色の色相</translation>
    </message>
    <message>
      <source>Image shift</source>
      <translation>画像のずらし</translation>
    </message>
    <message>
      <source>In document</source>
      <translation>文書内</translation>
    </message>
    <message>
      <source>Indefinite</source>
      <translation>無期限</translation>
    </message>
    <message>
      <source>Insert</source>
      <translation>挿入する</translation>
    </message>
    <message>
      <source>Insert them after these pages</source>
      <translation>これらのページの後に挿入</translation>
    </message>
    <message>
      <source>Inserts</source>
      <translation>差し込み紙</translation>
    </message>
    <message>
      <source>It was canceled: print again</source>
      <translation>取り消しました。もう一度印刷してください</translation>
    </message>
    <message>
      <source>Job name</source>
      <translation>ジョブ名</translation>
    </message>
    <message>
      <source>Jobs of %1 do not pass through the filter of these settings; most of them will have no effect.</source>
      <translation>%1 のジョブはこの設定のフィルターを通らないため、ほとんどの設定は効きません。</translation>
    </message>
    <message>
      <source>Keep</source>
      <translation>登録</translation>
    </message>
    <message>
      <source>Keep in the address book</source>
      <translation>アドレス帳に登録</translation>
    </message>
    <message>
      <source>Keep on the printer, do not print</source>
      <translation>プリンターに保存し、印刷しない</translation>
    </message>
    <message>
      <source>Keep the changes of this watermark</source>
      <translation>このウォーターマークの変更を保存</translation>
    </message>
    <message>
      <source>Keep the settings under a name</source>
      <translation>設定に名前を付けて登録</translation>
    </message>
    <message>
      <source>Kept as %1. "zarvo ticket list" shows all that are kept.</source>
      <translation>%1 として登録しました。「zarvo ticket list」で一覧を表示できます。</translation>
    </message>
    <message>
      <source>Kept on the printer, not printed</source>
      <translation>プリンターに保存（印刷なし）</translation>
    </message>
    <message>
      <source>Kind</source>
      <translation>種類</translation>
    </message>
    <message>
      <source>Kind of account in mode "user"</source>
      <translation>「ユーザー」のときのアカウントの種類</translation>
    </message>
    <message>
      <source>Kind of coating</source>
      <translation>コーティングの種類</translation>
    </message>
    <message>
      <source>Kind of stock</source>
      <translation>用紙の種類</translation>
    </message>
    <message>
      <source>Label of the fax number</source>
      <translation>ファクス番号の表示名</translation>
    </message>
    <message>
      <source>Label of the sender's fax number</source>
      <translation>送信者ファクス番号の表示名</translation>
    </message>
    <message>
      <source>Label of the sender's phone number</source>
      <translation>送信者電話番号の表示名</translation>
    </message>
    <message>
      <source>Landscape</source>
      <translation>横</translation>
    </message>
    <message>
      <source>Last page</source>
      <translation>最後のページ</translation>
    </message>
    <message>
      <source>Legal</source>
      <translation>リーガル</translation>
    </message>
    <message>
      <source>Length of a size without a code, 1/100 mm</source>
      <translation>番号のないサイズの長さ（1/100 mm）</translation>
    </message>
    <message>
      <source>Letter</source>
      <translation>レター</translation>
    </message>
    <message>
      <source>Letter head</source>
      <translation>レターヘッド</translation>
    </message>
    <message>
      <source>Look for OPI images first</source>
      <translation>先に OPI 画像を探す</translation>
    </message>
    <message>
      <source>Magenta</source>
      <translation>マゼンタ</translation>
    </message>
    <message>
      <source>Magenta to green</source>
      <translation>マゼンタ～緑</translation>
    </message>
    <message>
      <source>Mailbox on the printer</source>
      <translation>プリンターのボックス</translation>
    </message>
    <message>
      <source>Make or change a watermark</source>
      <translation>ウォーターマークの作成と変更</translation>
    </message>
    <message>
      <source>Mapping method</source>
      <translation>割り当て方法</translation>
    </message>
    <message>
      <source>Matte</source>
      <translation>つや消し</translation>
    </message>
    <message>
      <source>Medium</source>
      <translation>中</translation>
    </message>
    <message>
      <source>Message on the banner page</source>
      <translation>バナーページのメッセージ</translation>
    </message>
    <message>
      <source>Message to the operator</source>
      <translation>オペレーターへの伝言</translation>
    </message>
    <message>
      <source>Mirror the page</source>
      <translation>ページを鏡像にする</translation>
    </message>
    <message>
      <source>Mirrored</source>
      <translation>鏡像</translation>
    </message>
    <message>
      <source>Multi page tiff</source>
      <translation>TIFF（1 ファイル）</translation>
    </message>
    <message>
      <source>Name of a saved job</source>
      <translation>保存ジョブの名前</translation>
    </message>
    <message>
      <source>Name of the job</source>
      <translation>ジョブの名前</translation>
    </message>
    <message>
      <source>Name that the printer knows it by</source>
      <translation>プリンターでの用紙名</translation>
    </message>
    <message>
      <source>Name the job after the document</source>
      <translation>ジョブ名を文書名にする</translation>
    </message>
    <message>
      <source>Name to save it under</source>
      <translation>保存名</translation>
    </message>
    <message>
      <source>Name under which the job is stored as a form</source>
      <translation>フォームとして保存する名前</translation>
    </message>
    <message>
      <source>Name under which the printer knows the stock</source>
      <translation>プリンターでの用紙の名前</translation>
    </message>
    <message>
      <source>Negative</source>
      <translation>ネガ</translation>
    </message>
    <message>
      <source>Negative and mirror</source>
      <translation>ネガと鏡像</translation>
    </message>
    <message>
      <source>New</source>
      <translation>新規</translation>
    </message>
    <message>
      <source>No</source>
      <translation>いいえ</translation>
    </message>
    <message>
      <source>No booklet</source>
      <translation>小冊子にしない</translation>
    </message>
    <message>
      <source>No cover</source>
      <translation>表紙なし</translation>
    </message>
    <message>
      <source>No fold</source>
      <translation>折らない</translation>
    </message>
    <message>
      <source>No holes</source>
      <translation>穴なし</translation>
    </message>
    <message>
      <source>No pre scan</source>
      <translation>事前走査なし</translation>
    </message>
    <message>
      <source>No printers</source>
      <translation>プリンターなし</translation>
    </message>
    <message>
      <source>No staples</source>
      <translation>ステープルなし</translation>
    </message>
    <message>
      <source>No time is set</source>
      <translation>時刻の指定なし</translation>
    </message>
    <message>
      <source>None is kept yet. Choose settings in the other groups, type a name below and keep them.</source>
      <translation>まだ保存されたものはありません。ほかのグループで設定を選び、下に名前を入力して保存してください。</translation>
    </message>
    <message>
      <source>Normal</source>
      <translation>標準</translation>
    </message>
    <message>
      <source>Not glued</source>
      <translation>糊とじなし</translation>
    </message>
    <message>
      <source>Not printed</source>
      <translation>印刷しない</translation>
    </message>
    <message>
      <source>Notes</source>
      <translation>メモ</translation>
    </message>
    <message>
      <source>Notes on the cover</source>
      <translation>送付状のメモ</translation>
    </message>
    <message numerus="yes">
      <source>Nothing has come from the programs that convert the document for %n second(s); they have been ended.</source>
      <translation>
        <numerusform>文書を変換するプログラムから %n 秒間応答がなかったため、終了しました。</numerusform>
      </translation>
    </message>
    <message>
      <source>Nothing: the job is printed as the queue does it by itself.</source>
      <translation>変更なし: キューの標準設定どおりに印刷します。</translation>
    </message>
    <message>
      <source>Number</source>
      <translation>番号</translation>
    </message>
    <message>
      <source>Number of holes</source>
      <translation>穴の数</translation>
    </message>
    <message>
      <source>Number of sheets</source>
      <translation>枚数</translation>
    </message>
    <message>
      <source>OPI images</source>
      <translation>OPI 画像</translation>
    </message>
    <message>
      <source>Object based</source>
      <translation>オブジェクトごと</translation>
    </message>
    <message>
      <source>Offset</source>
      <translation>オフセット</translation>
    </message>
    <message>
      <source>Offset in the tray</source>
      <translation>トレイ内のオフセット</translation>
    </message>
    <message>
      <source>Offset of sets</source>
      <translation>部のオフセット</translation>
    </message>
    <message>
      <source>Offset of subsets</source>
      <translation>サブセットのオフセット</translation>
    </message>
    <message>
      <source>Offset this job in the tray</source>
      <translation>このジョブをずらして排紙</translation>
    </message>
    <message>
      <source>Offset to the right</source>
      <translation>右へのずれ</translation>
    </message>
    <message>
      <source>Offset upwards</source>
      <translation>上へのずれ</translation>
    </message>
    <message>
      <source>Offsets are in 1/10 inch, else in mm</source>
      <translation>ずれは 1/10 インチ単位（それ以外は mm）</translation>
    </message>
    <message>
      <source>Offsets are in 1/100 mm already</source>
      <translation>ずれは 1/100 mm 単位</translation>
    </message>
    <message>
      <source>On A4</source>
      <translation>A4</translation>
    </message>
    <message>
      <source>On Letter</source>
      <translation>レター</translation>
    </message>
    <message>
      <source>On the first page only</source>
      <translation>最初のページのみ</translation>
    </message>
    <message>
      <source>On the paper's own size</source>
      <translation>用紙のサイズに合わせる</translation>
    </message>
    <message>
      <source>One sheet, large</source>
      <translation>用紙の拡大表示</translation>
    </message>
    <message>
      <source>One side of each sheet</source>
      <translation>片面</translation>
    </message>
    <message>
      <source>One staple</source>
      <translation>ホチキス 1 か所</translation>
    </message>
    <message>
      <source>One staple, bottom left</source>
      <translation>左下 1 か所</translation>
    </message>
    <message>
      <source>One staple, bottom right</source>
      <translation>右下 1 か所</translation>
    </message>
    <message>
      <source>One staple, top left</source>
      <translation>左上 1 か所</translation>
    </message>
    <message>
      <source>One staple, top right</source>
      <translation>右上 1 か所</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>開く</translation>
    </message>
    <message>
      <source>Open &amp;settings…</source>
      <translation>設定を開く(&amp;S)…</translation>
    </message>
    <message>
      <source>Open settings</source>
      <translation>設定を開く</translation>
    </message>
    <message>
      <source>Order and side of delivery</source>
      <translation>排紙の順序と面</translation>
    </message>
    <message>
      <source>Orientation</source>
      <translation>向き</translation>
    </message>
    <message>
      <source>Over the page</source>
      <translation>ページの前面</translation>
    </message>
    <message>
      <source>PIN, up to 19 characters</source>
      <translation>暗証番号（19 文字まで）</translation>
    </message>
    <message>
      <source>Page %1</source>
      <translation>%1 ページ</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1</source>
      <translation>%2 ページ・用紙 %1</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1, back</source>
      <translation>%2 ページ・用紙 %1 裏</translation>
    </message>
    <message>
      <source>Page %2 · sheet %1, front</source>
      <translation>%2 ページ・用紙 %1 表</translation>
    </message>
    <message>
      <source>Page after which they come</source>
      <translation>この後に入れるページ</translation>
    </message>
    <message>
      <source>Page exception</source>
      <translation>ページの例外</translation>
    </message>
    <message>
      <source>Page exceptions</source>
      <translation>ページごとの例外</translation>
    </message>
    <message>
      <source>Pages</source>
      <translation>ページ</translation>
    </message>
    <message>
      <source>Pages %1 to %2</source>
      <translation>%1～%2 ページ</translation>
    </message>
    <message>
      <source>Pages after which the form starts again</source>
      <translation>フォームが繰り返すページ数</translation>
    </message>
    <message>
      <source>Pages in a cycle</source>
      <translation>1 周期のページ数</translation>
    </message>
    <message>
      <source>Pages in a subset</source>
      <translation>サブセットのページ数</translation>
    </message>
    <message>
      <source>Pages turned</source>
      <translation>ページの回転</translation>
    </message>
    <message>
      <source>Paper</source>
      <translation>用紙</translation>
    </message>
    <message>
      <source>Paper and trays</source>
      <translation>用紙とトレイ</translation>
    </message>
    <message>
      <source>Paper colour</source>
      <translation>用紙の色</translation>
    </message>
    <message>
      <source>Paper from</source>
      <translation>給紙元</translation>
    </message>
    <message>
      <source>Paper kind</source>
      <translation>用紙の種類</translation>
    </message>
    <message>
      <source>Paper of both covers</source>
      <translation>両表紙の用紙</translation>
    </message>
    <message>
      <source>Paper of the cover</source>
      <translation>送付状の用紙</translation>
    </message>
    <message>
      <source>Paper of the front cover</source>
      <translation>表紙の用紙</translation>
    </message>
    <message>
      <source>Paper weight</source>
      <translation>用紙の厚さ</translation>
    </message>
    <message>
      <source>Phone number</source>
      <translation>電話番号</translation>
    </message>
    <message>
      <source>Pictorial</source>
      <translation>写真</translation>
    </message>
    <message>
      <source>Picture for a watermark</source>
      <translation>ウォーターマーク用の画像</translation>
    </message>
    <message>
      <source>Portrait</source>
      <translation>縦</translation>
    </message>
    <message>
      <source>PostScript job %1 of %2</source>
      <translation>PostScript ジョブ %1 / %2</translation>
    </message>
    <message>
      <source>Pre printed</source>
      <translation>印刷済み</translation>
    </message>
    <message>
      <source>Pre scan</source>
      <translation>事前走査</translation>
    </message>
    <message>
      <source>Pre scan and gather</source>
      <translation>事前走査と収集</translation>
    </message>
    <message>
      <source>Presentation</source>
      <translation>プレゼンテーション</translation>
    </message>
    <message>
      <source>Print a confirmation</source>
      <translation>送信結果を印刷</translation>
    </message>
    <message>
      <source>Print a range of pages</source>
      <translation>ページ範囲を印刷</translation>
    </message>
    <message>
      <source>Print and keep on the printer</source>
      <translation>印刷してプリンターに保存</translation>
    </message>
    <message>
      <source>Print and save it</source>
      <translation>印刷して保存</translation>
    </message>
    <message>
      <source>Print in</source>
      <translation>印刷色</translation>
    </message>
    <message>
      <source>Print it</source>
      <translation>印刷する</translation>
    </message>
    <message>
      <source>Print it all the same</source>
      <translation>このまま印刷</translation>
    </message>
    <message>
      <source>Print it later</source>
      <translation>後で印刷</translation>
    </message>
    <message>
      <source>Print on</source>
      <translation>印刷面</translation>
    </message>
    <message>
      <source>Print these pages so</source>
      <translation>これらのページに適用</translation>
    </message>
    <message>
      <source>Printed after</source>
      <translation>印刷時刻</translation>
    </message>
    <message>
      <source>Printed already</source>
      <translation>印刷済み</translation>
    </message>
    <message>
      <source>Printed for</source>
      <translation>受取人</translation>
    </message>
    <message>
      <source>Printed sheets</source>
      <translation>印刷した紙</translation>
    </message>
    <message>
      <source>Printed sides</source>
      <translation>印刷する面</translation>
    </message>
    <message>
      <source>Printed, and kept on the printer</source>
      <translation>印刷してプリンターに保存</translation>
    </message>
    <message>
      <source>Printer</source>
      <translation>プリンター</translation>
    </message>
    <message>
      <source>Profile of CMYK graphics</source>
      <translation>CMYK 図形のプロファイル</translation>
    </message>
    <message>
      <source>Profile of CMYK images</source>
      <translation>CMYK 画像のプロファイル</translation>
    </message>
    <message>
      <source>Profile of CMYK text</source>
      <translation>CMYK 文字のプロファイル</translation>
    </message>
    <message>
      <source>Profile of RGB graphics</source>
      <translation>RGB 図形のプロファイル</translation>
    </message>
    <message>
      <source>Profile of RGB images</source>
      <translation>RGB 画像のプロファイル</translation>
    </message>
    <message>
      <source>Profile of RGB text</source>
      <translation>RGB 文字のプロファイル</translation>
    </message>
    <message>
      <source>Profile of gray graphics</source>
      <translation>グレー図形のプロファイル</translation>
    </message>
    <message>
      <source>Profile of gray images</source>
      <translation>グレー画像のプロファイル</translation>
    </message>
    <message>
      <source>Profile of gray text</source>
      <translation>グレー文字のプロファイル</translation>
    </message>
    <message>
      <source>Progress of drawing</source>
      <translation>描画の進行状況</translation>
    </message>
    <message>
      <source>Progress of the job</source>
      <translation>ジョブの進行状況</translation>
    </message>
    <message>
      <source>Proof: one set first</source>
      <translation>試し刷り（先に 1 部）</translation>
    </message>
    <message>
      <source>Proof: one set, the others when it is released</source>
      <translation>見本: 1 部だけ先に、残りは解除後</translation>
    </message>
    <message>
      <source>Punch choice</source>
      <translation>パンチの位置</translation>
    </message>
    <message>
      <source>Punched at the bottom</source>
      <translation>下にパンチ</translation>
    </message>
    <message>
      <source>Punched at the left</source>
      <translation>左にパンチ</translation>
    </message>
    <message>
      <source>Punched at the right</source>
      <translation>右にパンチ</translation>
    </message>
    <message>
      <source>Punched at the top</source>
      <translation>上にパンチ</translation>
    </message>
    <message>
      <source>Put in OPI images</source>
      <translation>OPI 画像を挿入</translation>
    </message>
    <message>
      <source>Quality</source>
      <translation>品質</translation>
    </message>
    <message>
      <source>Reading order of a booklet</source>
      <translation>小冊子の読む向き</translation>
    </message>
    <message>
      <source>Recipient text of the cover</source>
      <translation>送付状の宛先の文</translation>
    </message>
    <message>
      <source>Recipients</source>
      <translation>宛先</translation>
    </message>
    <message>
      <source>Recipients on the cover</source>
      <translation>送付状の宛先</translation>
    </message>
    <message>
      <source>Recycled stock</source>
      <translation>再生紙</translation>
    </message>
    <message>
      <source>Red of a custom colour</source>
      <translation>ユーザー定義色の赤</translation>
    </message>
    <message>
      <source>Redo: %1</source>
      <translation>やり直す: %1</translation>
    </message>
    <message>
      <source>Remove</source>
      <translation>削除</translation>
    </message>
    <message>
      <source>Remove it</source>
      <translation>これを削除</translation>
    </message>
    <message>
      <source>Rendering intent of graphics</source>
      <translation>図形のレンダリング</translation>
    </message>
    <message>
      <source>Rendering intent of images</source>
      <translation>画像のレンダリング</translation>
    </message>
    <message>
      <source>Rendering intent of text</source>
      <translation>文字のレンダリング</translation>
    </message>
    <message>
      <source>Resolution of a job that brings its own header</source>
      <translation>独自のヘッダーを持つジョブの解像度</translation>
    </message>
    <message>
      <source>Reverse landscape</source>
      <translation>逆横</translation>
    </message>
    <message>
      <source>Reverse order face down</source>
      <translation>最後のページから、裏向き</translation>
    </message>
    <message>
      <source>Reverse order face up</source>
      <translation>最後のページから、表向き</translation>
    </message>
    <message>
      <source>Reverse portrait</source>
      <translation>逆縦</translation>
    </message>
    <message>
      <source>Royal</source>
      <translation>ロイヤルブルー</translation>
    </message>
    <message>
      <source>Ruby</source>
      <translation>ルビー</translation>
    </message>
    <message>
      <source>SRGB</source>
      <translation>sRGB</translation>
    </message>
    <message>
      <source>Same order face down</source>
      <translation>最初のページから、裏向き</translation>
    </message>
    <message>
      <source>Same order face up</source>
      <translation>最初のページから、表向き</translation>
    </message>
    <message>
      <source>Satin</source>
      <translation>サテン</translation>
    </message>
    <message>
      <source>Saturation of a custom colour</source>
      <translation>ユーザー定義色の彩度</translation>
    </message>
    <message>
      <source>Save it at the printer</source>
      <translation>プリンターに保存</translation>
    </message>
    <message>
      <source>Save it only</source>
      <translation>保存のみ</translation>
    </message>
    <message>
      <source>Save it under the document's name</source>
      <translation>文書名で保存</translation>
    </message>
    <message>
      <source>Save s&amp;ettings</source>
      <translation>設定を保存(&amp;E)</translation>
    </message>
    <message>
      <source>Save settings</source>
      <translation>設定を保存</translation>
    </message>
    <message>
      <source>Save settings &amp;as…</source>
      <translation>名前を付けて設定を保存(&amp;A)…</translation>
    </message>
    <message>
      <source>Save the changed settings to %1?</source>
      <translation>変更した設定を %1 に保存しますか?</translation>
    </message>
    <message>
      <source>Save toner</source>
      <translation>トナー節約</translation>
    </message>
    <message>
      <source>Saved in the folder</source>
      <translation>保存先フォルダー</translation>
    </message>
    <message>
      <source>Saved job</source>
      <translation>保存ジョブ</translation>
    </message>
    <message>
      <source>Saved under the name</source>
      <translation>保存名</translation>
    </message>
    <message>
      <source>Secure print: held until the PIN is typed</source>
      <translation>セキュリティープリント: 暗証番号の入力まで保留</translation>
    </message>
    <message>
      <source>Secure: wait for a PIN</source>
      <translation>機密: 暗証番号を待つ</translation>
    </message>
    <message>
      <source>SecurePrintPassword: the PIN is no text; send it as ..d_SecurePrintPassword=TEXT</source>
      <translation>SecurePrintPassword: 暗証番号が文字列ではありません。..d_SecurePrintPassword=文字列 で送ってください</translation>
    </message>
    <message>
      <source>Select pages, or type some such as 5-8, 12.</source>
      <translation>ページを選ぶか、5-8, 12 のように入力してください。</translation>
    </message>
    <message>
      <source>Semi gloss</source>
      <translation>半光沢</translation>
    </message>
    <message>
      <source>Send a cover</source>
      <translation>送付状を付ける</translation>
    </message>
    <message>
      <source>Send a cover sheet</source>
      <translation>送付状を送る</translation>
    </message>
    <message>
      <source>Send it as a fax</source>
      <translation>ファックス送信</translation>
    </message>
    <message>
      <source>Sender on the cover</source>
      <translation>送付状の送信者</translation>
    </message>
    <message>
      <source>Sender's company</source>
      <translation>送信者の会社</translation>
    </message>
    <message>
      <source>Sender's e-mail address</source>
      <translation>送信者のメールアドレス</translation>
    </message>
    <message>
      <source>Sender's fax number</source>
      <translation>送信者のファクス番号</translation>
    </message>
    <message>
      <source>Sender's name</source>
      <translation>送信者の名前</translation>
    </message>
    <message>
      <source>Sender's phone number</source>
      <translation>送信者の電話番号</translation>
    </message>
    <message>
      <source>Sending "%1" to %2…</source>
      <translation>「%1」を %2 に送信中…</translation>
    </message>
    <message>
      <source>Sent by</source>
      <translation>送信者</translation>
    </message>
    <message>
      <source>Separator sheets</source>
      <translation>仕切り紙</translation>
    </message>
    <message>
      <source>Separators between transparencies</source>
      <translation>OHP 合紙</translation>
    </message>
    <message>
      <source>Setting</source>
      <translation>設定</translation>
    </message>
    <message>
      <source>Settings</source>
      <translation>設定</translation>
    </message>
    <message>
      <source>Shades of gray</source>
      <translation>グレースケール</translation>
    </message>
    <message>
      <source>Sheet %1</source>
      <translation>用紙 %1</translation>
    </message>
    <message>
      <source>Sheets</source>
      <translation>枚数</translation>
    </message>
    <message>
      <source>Sheets as they are delivered</source>
      <translation>出力される用紙</translation>
    </message>
    <message>
      <source>Sheets between the pages</source>
      <translation>ページ間の合紙</translation>
    </message>
    <message>
      <source>Sheets in a set</source>
      <translation>1 組の枚数</translation>
    </message>
    <message>
      <source>Sheets in an ordered set, such as tabs</source>
      <translation>順序のある組の枚数（タブ紙など）</translation>
    </message>
    <message>
      <source>Shift stacks</source>
      <translation>用紙の束をずらす</translation>
    </message>
    <message>
      <source>Shift the pages</source>
      <translation>ページの位置をずらす</translation>
    </message>
    <message>
      <source>Shift to the right, side 1</source>
      <translation>右へずらす（表）</translation>
    </message>
    <message>
      <source>Shift to the right, side 2</source>
      <translation>右へずらす（裏）</translation>
    </message>
    <message>
      <source>Shift upwards, side 1</source>
      <translation>上へずらす（表）</translation>
    </message>
    <message>
      <source>Shift upwards, side 2</source>
      <translation>上へずらす（裏）</translation>
    </message>
    <message>
      <source>Side</source>
      <translation>サイド</translation>
    </message>
    <message>
      <source>Sides</source>
      <translation>面</translation>
    </message>
    <message>
      <source>Sides, when FinishingDuplex does not say</source>
      <translation>FinishingDuplex の指定がないときの面</translation>
    </message>
    <message>
      <source>Single page tiff</source>
      <translation>TIFF（1 ページ 1 ファイル）</translation>
    </message>
    <message>
      <source>Size</source>
      <translation>サイズ</translation>
    </message>
    <message>
      <source>Size of the picture</source>
      <translation>画像の大きさ</translation>
    </message>
    <message>
      <source>Size of the sheets</source>
      <translation>用紙の表示サイズ</translation>
    </message>
    <message>
      <source>Size of the text</source>
      <translation>文字の大きさ</translation>
    </message>
    <message>
      <source>Slip sheets between the sets</source>
      <translation>部の間の仕切り紙</translation>
    </message>
    <message>
      <source>Smoothing of edges</source>
      <translation>輪郭の補正</translation>
    </message>
    <message>
      <source>Source profile of CMYK images: a code or a name</source>
      <translation>CMYK 画像の入力プロファイル（番号または名前）</translation>
    </message>
    <message>
      <source>Source profile of CMYK text and graphics: a code or a name</source>
      <translation>CMYK 文字と図形の入力プロファイル（番号または名前）</translation>
    </message>
    <message>
      <source>Source profile of RGB images: a code or a name</source>
      <translation>RGB 画像の入力プロファイル（番号または名前）</translation>
    </message>
    <message>
      <source>Source profile of RGB text and graphics: a code or a name</source>
      <translation>RGB 文字と図形の入力プロファイル（番号または名前）</translation>
    </message>
    <message>
      <source>Source profile of gray images</source>
      <translation>グレー画像の入力プロファイル</translation>
    </message>
    <message>
      <source>Source profile of gray text and graphics</source>
      <translation>グレー文字と図形の入力プロファイル</translation>
    </message>
    <message>
      <source>Space between booklet pages, points</source>
      <translation>小冊子のページ間隔（ポイント）</translation>
    </message>
    <message>
      <source>Space between the pages</source>
      <translation>ページの間隔</translation>
    </message>
    <message>
      <source>Speed</source>
      <translation>速度</translation>
    </message>
    <message>
      <source>Stapled bottom left</source>
      <translation>左下ホチキス</translation>
    </message>
    <message>
      <source>Stapled bottom right</source>
      <translation>右下ホチキス</translation>
    </message>
    <message>
      <source>Stapled top left</source>
      <translation>左上ホチキス</translation>
    </message>
    <message>
      <source>Stapled top right</source>
      <translation>右上ホチキス</translation>
    </message>
    <message>
      <source>Staples</source>
      <translation>ステープル</translation>
    </message>
    <message>
      <source>Staples in the fold</source>
      <translation>折り目のホチキス</translation>
    </message>
    <message>
      <source>Stock name</source>
      <translation>用紙名</translation>
    </message>
    <message>
      <source>Stock size code</source>
      <translation>用紙サイズの番号</translation>
    </message>
    <message>
      <source>Store a picture…</source>
      <translation>画像を登録…</translation>
    </message>
    <message>
      <source>Store it under the document's name</source>
      <translation>文書名で保存</translation>
    </message>
    <message>
      <source>Store this text as a new one</source>
      <translation>この文字を新しく保存</translation>
    </message>
    <message>
      <source>Stored as a form</source>
      <translation>フォームとして保存</translation>
    </message>
    <message>
      <source>Stored form to print behind the pages</source>
      <translation>ページの下に印刷する保存フォーム</translation>
    </message>
    <message>
      <source>Superfine</source>
      <translation>超高画質</translation>
    </message>
    <message>
      <source>Surface</source>
      <translation>表面</translation>
    </message>
    <message>
      <source>Surface finish</source>
      <translation>表面の仕上げ</translation>
    </message>
    <message>
      <source>Taking the job back…</source>
      <translation>ジョブを取り消しています…</translation>
    </message>
    <message>
      <source>Template</source>
      <translation>テンプレート</translation>
    </message>
    <message>
      <source>Template of the printer</source>
      <translation>プリンターのテンプレート</translation>
    </message>
    <message>
      <source>Text</source>
      <translation>文字</translation>
    </message>
    <message>
      <source>Text on the banner page</source>
      <translation>バナーページの文</translation>
    </message>
    <message>
      <source>That watermark on the first page only</source>
      <translation>そのウォーターマークは最初のページだけ</translation>
    </message>
    <message>
      <source>That watermark over the page, else behind</source>
      <translation>そのウォーターマークをページの上に（それ以外は下に）</translation>
    </message>
    <message>
      <source>The address book cannot be written: %1</source>
      <translation>アドレス帳に書き込めません: %1</translation>
    </message>
    <message>
      <source>The address book is empty</source>
      <translation>アドレス帳は空です</translation>
    </message>
    <message>
      <source>The cover's paper</source>
      <translation>表紙の用紙</translation>
    </message>
    <message>
      <source>The document's name</source>
      <translation>文書の名前</translation>
    </message>
    <message>
      <source>The fax cover sheet was left out</source>
      <translation>ファクスの送付状は省かれました</translation>
    </message>
    <message>
      <source>The finisher has no way to do this together with what is chosen already.</source>
      <translation>すでに選んだ仕上げと組み合わせることができません。</translation>
    </message>
    <message>
      <source>The inside</source>
      <translation>内側</translation>
    </message>
    <message>
      <source>The job</source>
      <translation>ジョブ</translation>
    </message>
    <message>
      <source>The job is at the spooler as %1.</source>
      <translation>ジョブは %1 としてキューにあります。</translation>
    </message>
    <message>
      <source>The job is being printed.</source>
      <translation>ジョブを印刷しています。</translation>
    </message>
    <message>
      <source>The job is held by the spooler.</source>
      <translation>ジョブはキューで保留されています。</translation>
    </message>
    <message>
      <source>The job waits to be printed.</source>
      <translation>ジョブは印刷待ちです。</translation>
    </message>
    <message>
      <source>The job was canceled.</source>
      <translation>ジョブは取り消されました。</translation>
    </message>
    <message>
      <source>The job was not printed.</source>
      <translation>ジョブは印刷されませんでした。</translation>
    </message>
    <message>
      <source>The job was not sent.</source>
      <translation>ジョブは送信されませんでした。</translation>
    </message>
    <message>
      <source>The job was printed.</source>
      <translation>ジョブを印刷しました。</translation>
    </message>
    <message>
      <source>The job's paper</source>
      <translation>ジョブの用紙</translation>
    </message>
    <message>
      <source>The outside</source>
      <translation>外側</translation>
    </message>
    <message>
      <source>The pages' paper</source>
      <translation>これらのページの用紙</translation>
    </message>
    <message>
      <source>The printer %1 is gone. Choose another one.</source>
      <translation>プリンター %1 がなくなりました。別のプリンターを選んでください。</translation>
    </message>
    <message>
      <source>The printer dials %1</source>
      <translation>プリンターは %1 をダイヤルします</translation>
    </message>
    <message>
      <source>The program that makes the sheets has ended; the document needs more time or memory than it may take.</source>
      <translation>用紙を描画するプログラムが終了しました。文書が許される時間またはメモリーを超えています。</translation>
    </message>
    <message>
      <source>The program zarvosheets is missing.</source>
      <translation>プログラム zarvosheets がありません。</translation>
    </message>
    <message>
      <source>The sheets are finished as a booklet. Choose another finish here to have that instead.</source>
      <translation>小冊子として仕上げます。別の仕上げにするにはここで選んでください。</translation>
    </message>
    <message>
      <source>The sheets' paper</source>
      <translation>差し込む用紙</translation>
    </message>
    <message>
      <source>The spooler cannot be asked.</source>
      <translation>印刷システムに問い合わせできません。</translation>
    </message>
    <message>
      <source>The spooler does not tell what becomes of the job.</source>
      <translation>印刷システムからジョブの状態を得られません。</translation>
    </message>
    <message>
      <source>Their names</source>
      <translation>名前</translation>
    </message>
    <message>
      <source>There is nothing in this to dial.</source>
      <translation>ダイヤルできる番号がありません。</translation>
    </message>
    <message>
      <source>These pages</source>
      <translation>指定ページ</translation>
    </message>
    <message>
      <source>Three holes</source>
      <translation>3 穴</translation>
    </message>
    <message>
      <source>Three staples at the bottom</source>
      <translation>下にホチキス 3 か所</translation>
    </message>
    <message>
      <source>Three staples at the left</source>
      <translation>左にホチキス 3 か所</translation>
    </message>
    <message>
      <source>Three staples at the right</source>
      <translation>右にホチキス 3 か所</translation>
    </message>
    <message>
      <source>Three staples at the top</source>
      <translation>上にホチキス 3 か所</translation>
    </message>
    <message>
      <source>Ticket that is kept under this name, below all other settings</source>
      <translation>この名前で保存されたチケット（他のすべての設定の下に置く）</translation>
    </message>
    <message>
      <source>To</source>
      <translation>宛先</translation>
    </message>
    <message>
      <source>To the right, back (1/10 mm)</source>
      <translation>右へ・裏（1/10 mm）</translation>
    </message>
    <message>
      <source>To the right, front (1/10 mm)</source>
      <translation>右へ・表（1/10 mm）</translation>
    </message>
    <message>
      <source>Tone reproduction curve</source>
      <translation>階調再現カーブ</translation>
    </message>
    <message>
      <source>Toner saving</source>
      <translation>トナー節約</translation>
    </message>
    <message>
      <source>Tools</source>
      <translation>ツール</translation>
    </message>
    <message>
      <source>Top tray</source>
      <translation>上トレイ</translation>
    </message>
    <message>
      <source>Transmission speed</source>
      <translation>送信速度</translation>
    </message>
    <message>
      <source>Trap width across the feed</source>
      <translation>トラップ幅（搬送と直角）</translation>
    </message>
    <message>
      <source>Trap width along the feed</source>
      <translation>トラップ幅（搬送方向）</translation>
    </message>
    <message>
      <source>Tray</source>
      <translation>トレイ</translation>
    </message>
    <message>
      <source>Tray for the output</source>
      <translation>排紙トレイ</translation>
    </message>
    <message>
      <source>Tray; 0 is the inserter behind the fuser</source>
      <translation>トレイ（0 は定着後のインサーター）</translation>
    </message>
    <message>
      <source>Turn booklet sheets</source>
      <translation>小冊子の用紙を回転</translation>
    </message>
    <message>
      <source>Turn the pages</source>
      <translation>ページを回転</translation>
    </message>
    <message>
      <source>Turn the sheets</source>
      <translation>用紙を回転</translation>
    </message>
    <message>
      <source>Two holes</source>
      <translation>2 穴</translation>
    </message>
    <message>
      <source>Two sides</source>
      <translation>両面</translation>
    </message>
    <message>
      <source>Two staples</source>
      <translation>ホチキス 2 か所</translation>
    </message>
    <message>
      <source>Two staples at the bottom</source>
      <translation>下 2 か所</translation>
    </message>
    <message>
      <source>Two staples at the left</source>
      <translation>左 2 か所</translation>
    </message>
    <message>
      <source>Two staples at the right</source>
      <translation>右 2 か所</translation>
    </message>
    <message>
      <source>Two staples at the top</source>
      <translation>上 2 か所</translation>
    </message>
    <message>
      <source>Type</source>
      <translation>種類</translation>
    </message>
    <message>
      <source>Type a name first.</source>
      <translation>先に名前を入力してください。</translation>
    </message>
    <message>
      <source>Type a number and a name first.</source>
      <translation>先に番号と名前を入力してください。</translation>
    </message>
    <message>
      <source>Type a number that can be dialed first.</source>
      <translation>先にダイヤルできる番号を入力してください。</translation>
    </message>
    <message>
      <source>Type pages, or select them among the sheets.</source>
      <translation>ページを入力するか、用紙の中から選んでください。</translation>
    </message>
    <message>
      <source>Type the PIN that you will give at the printer.</source>
      <translation>プリンターで入力する暗証番号を決めてください。</translation>
    </message>
    <message>
      <source>Type the text first.</source>
      <translation>先に文字を入力してください。</translation>
    </message>
    <message>
      <source>Uncollated</source>
      <translation>ページ単位</translation>
    </message>
    <message>
      <source>Undo: %1</source>
      <translation>元に戻す: %1</translation>
    </message>
    <message>
      <source>Upside down</source>
      <translation>上下逆</translation>
    </message>
    <message>
      <source>Upwards, back (1/10 mm)</source>
      <translation>上へ・裏（1/10 mm）</translation>
    </message>
    <message>
      <source>Upwards, front (1/10 mm)</source>
      <translation>上へ・表（1/10 mm）</translation>
    </message>
    <message>
      <source>Use ready</source>
      <translation>用意済みのものを使う</translation>
    </message>
    <message>
      <source>Use these settings</source>
      <translation>この設定を使う</translation>
    </message>
    <message>
      <source>User</source>
      <translation>ユーザー</translation>
    </message>
    <message>
      <source>User, with or without an account</source>
      <translation>ユーザー（アカウントは任意）</translation>
    </message>
    <message>
      <source>Value of a custom colour</source>
      <translation>ユーザー定義色の明度</translation>
    </message>
    <message>
      <source>Values are in 1/100 inch, else in 1/10 mm</source>
      <translation>値は 1/100 インチ単位（それ以外は 1/10 mm）</translation>
    </message>
    <message>
      <source>Values are in 1/100 mm already</source>
      <translation>値は 1/100 mm 単位</translation>
    </message>
    <message>
      <source>Violet</source>
      <translation>紫</translation>
    </message>
    <message>
      <source>Watermark by its name</source>
      <translation>ウォーターマーク（名前で）</translation>
    </message>
    <message>
      <source>Watermark by its place in the list; 1 is none</source>
      <translation>ウォーターマーク（一覧の位置で、1 はなし）</translation>
    </message>
    <message>
      <source>Watermark on the cover</source>
      <translation>送付状のウォーターマーク</translation>
    </message>
    <message>
      <source>Watermark on the first page only</source>
      <translation>ウォーターマークは最初のページだけ</translation>
    </message>
    <message>
      <source>Weight</source>
      <translation>厚さ</translation>
    </message>
    <message>
      <source>Weight, g/m2</source>
      <translation>坪量（g/m²）</translation>
    </message>
    <message>
      <source>What I changed</source>
      <translation>変更した設定</translation>
    </message>
    <message>
      <source>What becomes of it</source>
      <translation>その後の扱い</translation>
    </message>
    <message>
      <source>What becomes of the job</source>
      <translation>ジョブの扱い</translation>
    </message>
    <message>
      <source>What is other than the rest</source>
      <translation>ほかと異なる部分</translation>
    </message>
    <message>
      <source>What you keep for this printer yourself (lpoptions), in every job:</source>
      <translation>このプリンターに自分で保存した設定（lpoptions、全ジョブに適用）:</translation>
    </message>
    <message>
      <source>When</source>
      <translation>日時</translation>
    </message>
    <message>
      <source>When a delayed job is printed</source>
      <translation>後で印刷するジョブの時刻</translation>
    </message>
    <message>
      <source>When it is sent</source>
      <translation>送信時刻</translation>
    </message>
    <message>
      <source>When the colorant is not loaded</source>
      <translation>色材がないとき</translation>
    </message>
    <message>
      <source>Where</source>
      <translation>場所</translation>
    </message>
    <message>
      <source>Where the sheets come out</source>
      <translation>排紙先</translation>
    </message>
    <message>
      <source>Where the watermark goes</source>
      <translation>ウォーターマークの位置</translation>
    </message>
    <message>
      <source>Whether a saved job is printed too</source>
      <translation>保存ジョブを印刷もするか</translation>
    </message>
    <message>
      <source>Which sections the XML ticket has; only the presence of a key counts</source>
      <translation>XML チケットのセクション（キーがあるかどうかだけが意味を持ちます）</translation>
    </message>
    <message>
      <source>Which sides are coated</source>
      <translation>コーティングされた面</translation>
    </message>
    <message>
      <source>Which sides of the cover are printed</source>
      <translation>表紙の印刷する面</translation>
    </message>
    <message>
      <source>Which watermark</source>
      <translation>どのウォーターマークか</translation>
    </message>
    <message>
      <source>Who gets the printout</source>
      <translation>受取人</translation>
    </message>
    <message>
      <source>Who sends the job</source>
      <translation>ジョブの送信者</translation>
    </message>
    <message>
      <source>Width of a size without a code, 1/100 mm</source>
      <translation>番号のないサイズの幅（1/100 mm）</translation>
    </message>
    <message>
      <source>Without a fax number, and so left out: %1</source>
      <translation>ファックス番号がないため除外しました: %1</translation>
    </message>
    <message>
      <source>Write the XML ticket</source>
      <translation>XML チケットを書く</translation>
    </message>
    <message>
      <source>X grain</source>
      <translation>X 目</translation>
    </message>
    <message>
      <source>Y grain</source>
      <translation>Y 目</translation>
    </message>
    <message>
      <source>Yellow to blue</source>
      <translation>黄～青</translation>
    </message>
    <message>
      <source>Yes</source>
      <translation>はい</translation>
    </message>
    <message>
      <source>Z fold 1</source>
      <translation>Z 折り 1</translation>
    </message>
    <message>
      <source>Z fold 2</source>
      <translation>Z 折り 2</translation>
    </message>
    <message>
      <source>Z-fold</source>
      <translation>Z 折り</translation>
    </message>
    <message>
      <source>a PIN takes 4 to 10 digits</source>
      <translation>暗証番号は 4～10 桁の数字です</translation>
    </message>
    <message>
      <source>a date such as "2026-12-31T18:30"</source>
      <translation>「2026-12-31T18:30」のような日時</translation>
    </message>
    <message>
      <source>a delayed job</source>
      <translation>後で印刷するジョブ</translation>
    </message>
    <message>
      <source>a delayed job needs a DelayedPrintTime</source>
      <translation>後で印刷するジョブには時刻 (DelayedPrintTime) が必要です</translation>
    </message>
    <message>
      <source>a fax</source>
      <translation>ファクス</translation>
    </message>
    <message>
      <source>a group of keys</source>
      <translation>キーのグループ</translation>
    </message>
    <message>
      <source>a job of this type</source>
      <translation>この種類のジョブ</translation>
    </message>
    <message>
      <source>a list of groups</source>
      <translation>グループの一覧</translation>
    </message>
    <message>
      <source>a name has at least one character</source>
      <translation>名前には 1 文字以上が必要です</translation>
    </message>
    <message>
      <source>a name has at most %1 bytes</source>
      <translation>名前は %1 バイトまでです</translation>
    </message>
    <message>
      <source>a name has no control characters</source>
      <translation>名前に制御文字は使えません</translation>
    </message>
    <message>
      <source>a name is UTF-8 with composed characters</source>
      <translation>名前は合成済み文字の UTF-8 です</translation>
    </message>
    <message>
      <source>a sample set</source>
      <translation>見本印刷のジョブ</translation>
    </message>
    <message>
      <source>a secure job needs a PIN; give one as JobPIN=Custom.DIGITS (%1)</source>
      <translation>セキュリティープリントには暗証番号 (%1) が必要です。「ジョブ」で入力してください</translation>
    </message>
    <message>
      <source>a text</source>
      <translation>文字列</translation>
    </message>
    <message>
      <source>a whole number</source>
      <translation>整数</translation>
    </message>
    <message>
      <source>accounting: the job names no account</source>
      <translation>課金: ジョブにアカウントがありません</translation>
    </message>
    <message>
      <source>accounting: the job names no user</source>
      <translation>課金: ジョブにユーザーがありません</translation>
    </message>
    <message>
      <source>add %1</source>
      <translation>%1 を追加してください</translation>
    </message>
    <message>
      <source>an image</source>
      <translation>画像</translation>
    </message>
    <message>
      <source>an option that nobody knows looks like a misspelt PIN; did you mean %1?</source>
      <translation>不明なオプションが暗証番号の書き間違いのようです。%1 ですか?</translation>
    </message>
    <message>
      <source>an ordinary job</source>
      <translation>通常のジョブ</translation>
    </message>
    <message>
      <source>another program keeps it locked; try again soon</source>
      <translation>別のプログラムがロックしています。少し後でもう一度お試しください</translation>
    </message>
    <message>
      <source>any page</source>
      <translation>どのページ</translation>
    </message>
    <message>
      <source>anything</source>
      <translation>任意の値</translation>
    </message>
    <message>
      <source>around the booklet</source>
      <translation>小冊子の外側</translation>
    </message>
    <message>
      <source>behind the page</source>
      <translation>ページの下</translation>
    </message>
    <message>
      <source>cannot be converted here; install the packages cups and cups-filters</source>
      <translation>ここでは変換できません。パッケージ cups と cups-filters をインストールしてください</translation>
    </message>
    <message>
      <source>cannot be converted: %1</source>
      <translation>変換できません: %1</translation>
    </message>
    <message>
      <source>did you mean %1?</source>
      <translation>%1 のことですか?</translation>
    </message>
    <message>
      <source>fax settings have no effect in a job that is no fax</source>
      <translation>ファクスでないジョブではファクスの設定は効きません</translation>
    </message>
    <message>
      <source>fax: %1 is cut, the printer takes %2 bytes; shorten it</source>
      <translation>ファクス: %1 は切り詰められます。プリンターが受け付けるのは %2 バイトまでです。短くしてください</translation>
    </message>
    <message>
      <source>give %1</source>
      <translation>%1 を指定してください</translation>
    </message>
    <message>
      <source>has no effect while no XML ticket is written; set %1 to 1</source>
      <translation>XML チケットを書かない間は効きません。%1 を 1 にしてください</translation>
    </message>
    <message>
      <source>has no effect without %1; add {"JTMLOptionAll": true} there</source>
      <translation>%1 がないと効きません。そこに {"JTMLOptionAll": true} を追加してください</translation>
    </message>
    <message>
      <source>in the middle of the booklet</source>
      <translation>小冊子の中央</translation>
    </message>
    <message>
      <source>insert</source>
      <translation>差し込み紙</translation>
    </message>
    <message>
      <source>is empty: neither PostScript nor PDF</source>
      <translation>空です。PostScript でも PDF でもありません</translation>
    </message>
    <message>
      <source>is no whole number</source>
      <translation>整数ではありません</translation>
    </message>
    <message>
      <source>is not printed with such settings</source>
      <translation>この設定では印刷しません</translation>
    </message>
    <message>
      <source>is nothing that the spooler can print: %1</source>
      <translation>印刷システムでは印刷できないファイルです: %1</translation>
    </message>
    <message>
      <source>it takes %1 to %2</source>
      <translation>%1～%2 が使えます</translation>
    </message>
    <message>
      <source>its fax cover sheet cannot be drawn</source>
      <translation>ファクスの送付状を描画できません</translation>
    </message>
    <message>
      <source>more PJL lines than any job needs</source>
      <translation>PJL の行が多すぎます</translation>
    </message>
    <message>
      <source>more PostScript jobs than can be told apart</source>
      <translation>区別できないほど多くの PostScript ジョブがあります</translation>
    </message>
    <message>
      <source>no PJL envelope: the printer takes it for plain PostScript</source>
      <translation>PJL の枠がありません。プリンターはただの PostScript とみなします</translation>
    </message>
    <message>
      <source>no PostScript document</source>
      <translation>PostScript 文書がありません</translation>
    </message>
    <message>
      <source>no page comments: pages cannot be counted, and nothing can be drawn on them</source>
      <translation>ページのコメントがないため、ページを数えることも描き加えることもできません</translation>
    </message>
    <message>
      <source>no page is printed</source>
      <translation>印刷されるページがありません</translation>
    </message>
    <message>
      <source>no stock has the code %1; take a known one, or give Width and Length</source>
      <translation>番号 %1 の用紙はありません。ある番号を使うか、幅と長さを指定してください</translation>
    </message>
    <message>
      <source>not a byte of it came: the document has none of these pages (page-ranges, page-set), or a program before this filter failed; choose others, or look what it says</source>
      <translation>1 バイトも届きませんでした: 文書にそのページ (page-ranges、page-set) がないか、このフィルターの前のプログラムが失敗しました。別のページを選ぶか、そのプログラムのメッセージを確認してください</translation>
    </message>
    <message>
      <source>not a byte of it came; look for what the programs before this filter say, make room on their disk and send it again</source>
      <translation>1 バイトも届きませんでした。このフィルターの前のプログラムのメッセージを確認し、そのディスクの空きを増やして、もう一度送信してください</translation>
    </message>
    <message>
      <source>not printed</source>
      <translation>印刷なし</translation>
    </message>
    <message>
      <source>on the first page only</source>
      <translation>最初のページだけ</translation>
    </message>
    <message>
      <source>other paper</source>
      <translation>別の用紙</translation>
    </message>
    <message>
      <source>other settings for the pages %1</source>
      <translation>%1 ページは別の設定</translation>
    </message>
    <message>
      <source>over the page</source>
      <translation>ページの上</translation>
    </message>
    <message>
      <source>over the page, which shows through</source>
      <translation>ページの上 (透過)</translation>
    </message>
    <message>
      <source>page %1</source>
      <translation>%1 ページ</translation>
    </message>
    <message>
      <source>page-ranges, page-set: the document has none of these pages, nothing comes out</source>
      <translation>page-ranges, page-set: 文書にそのページはなく、何も出力されません</translation>
    </message>
    <message>
      <source>print it again as the reason says</source>
      <translation>理由に従ってもう一度印刷してください</translation>
    </message>
    <message>
      <source>print it again as the reason says, and remove this one: cancel %1</source>
      <translation>理由に従ってもう一度印刷し、このジョブは削除してください: cancel %1</translation>
    </message>
    <message>
      <source>recipient %1 of the fax cannot be read; send it as a group of settings</source>
      <translation>ファクスの宛先 %1 を読み取れません。設定のグループとして送ってください</translation>
    </message>
    <message>
      <source>recipient %1 of the fax has a number with nothing that can be dialed; correct it</source>
      <translation>ファクスの宛先 %1 の番号にはダイヤルできるものがありません。直してください</translation>
    </message>
    <message>
      <source>recipient %1 of the fax has no number; give one</source>
      <translation>ファクスの宛先 %1 に番号がありません。指定してください</translation>
    </message>
    <message>
      <source>secure, but no PIN is set</source>
      <translation>セキュリティープリントですが暗証番号がありません</translation>
    </message>
    <message>
      <source>slip sheet after the set</source>
      <translation>部の後の仕切り紙</translation>
    </message>
    <message>
      <source>such as 5-8, 12</source>
      <translation>例: 5-8, 12</translation>
    </message>
    <message>
      <source>takes %1</source>
      <translation>%1 を指定します</translation>
    </message>
    <message>
      <source>takes %1: %2</source>
      <translation>%1 を指定します: %2</translation>
    </message>
    <message>
      <source>takes %1; did you mean "%2"?</source>
      <translation>%1 を指定します。「%2」ですか?</translation>
    </message>
    <message>
      <source>the PIN is cut on its way to the printer; %1 safely</source>
      <translation>暗証番号は途中で切り詰められます。安全なのは: %1</translation>
    </message>
    <message>
      <source>the PostScript does not end (%%EOF)</source>
      <translation>PostScript の終わり (%%EOF) がありません</translation>
    </message>
    <message>
      <source>the XML ticket does not end</source>
      <translation>XML チケットの終わりがありません</translation>
    </message>
    <message>
      <source>the document does not begin with %!PS-Adobe, so its PIN or fax number would not hold; print it by another program</source>
      <translation>文書が %!PS-Adobe で始まらないため、PIN やファクス番号が有効になりません。別のプログラムから印刷してください</translation>
    </message>
    <message>
      <source>the document ends the printer's job before its own end; what follows may be missing on paper; print it by another program</source>
      <translation>文書がその終わりより前にプリンターのジョブを終了させるため、続きが印刷されないことがあります。別のプログラムで印刷してください</translation>
    </message>
    <message>
      <source>the end of the job (PJL EOJ) is missing</source>
      <translation>ジョブの終わり (PJL EOJ) がありません</translation>
    </message>
    <message>
      <source>the fax has no %1; send its settings along</source>
      <translation>ファクスに %1 がありません。設定を一緒に送ってください</translation>
    </message>
    <message>
      <source>the fax has no recipient that can be read; give FaxNumber=Custom.NUMBER</source>
      <translation>ファクスに読み取れる宛先がありません。「ファクス」で追加してください</translation>
    </message>
    <message>
      <source>the figure has a preview for DOS around it, which printers do not understand, so nothing may come out; "ps2pdf -dEPSCrop" makes a PDF of it that can be printed</source>
      <translation>図に DOS 用プレビューが付いており、プリンターが理解できず何も出力されないことがあります。"ps2pdf -dEPSCrop" で印刷できる PDF になります</translation>
    </message>
    <message>
      <source>the figure has no page comments, so the spooler has found no page in it and nothing comes out; "ps2pdf -dEPSCrop" makes a PDF of it that can be printed</source>
      <translation>図にページコメントがないためスプーラーがページを見つけられず、何も出力されません。"ps2pdf -dEPSCrop" で印刷できる PDF になります</translation>
    </message>
    <message>
      <source>the job header holds a line that is no PJL</source>
      <translation>ジョブのヘッダーに PJL でない行があります</translation>
    </message>
    <message>
      <source>the job holds no PostScript</source>
      <translation>ジョブに PostScript がありません</translation>
    </message>
    <message>
      <source>the job was cut short: the document goes on behind its end or an exit from its language, where its PIN or fax number does not hold any more; print it by another program</source>
      <translation>ジョブは途中で打ち切られました: 文書が終わりまたは言語の終了の後にも続き、そこでは PIN やファクス番号が有効ではありません。別のプログラムから印刷してください</translation>
    </message>
    <message>
      <source>the job was not printed</source>
      <translation>ジョブは印刷されませんでした</translation>
    </message>
    <message>
      <source>the printer stops after page %1: %2</source>
      <translation>プリンターは %1 ページの後で止まります: %2</translation>
    </message>
    <message>
      <source>the printer stops before the first page: %1</source>
      <translation>プリンターは最初のページの前で止まります: %1</translation>
    </message>
    <message>
      <source>the printer would print no page of this job</source>
      <translation>このジョブでは 1 ページも印刷されません</translation>
    </message>
    <message>
      <source>the scrambled form of this PIN would end the printer's line; %1 safely</source>
      <translation>この暗証番号は暗号化するとプリンターの行を終わらせてしまいます。安全なのは: %1</translation>
    </message>
    <message>
      <source>the sheets are folded in the middle, but the pages are not laid out as a booklet</source>
      <translation>用紙は中央で折られますが、ページは小冊子の配置になっていません</translation>
    </message>
    <message>
      <source>the spooler did not say that it has the document</source>
      <translation>印刷システムから文書を受け取ったという返事がありません</translation>
    </message>
    <message>
      <source>the spooler does not answer; start it, for example with "systemctl start cups"</source>
      <translation>印刷システムが応答しません。「systemctl start cups」などで起動してください</translation>
    </message>
    <message>
      <source>the watermark behind the page cannot be seen on %1, where the document paints its own ground; put it over the page (WMPlace=Overlay)</source>
      <translation>文書が背景を塗っているため、ページの下のウォーターマークは見えません (%1)。ページの上に置いてください</translation>
    </message>
    <message>
      <source>the watermark's image was left out or is not whole; the log tells why, the administrator can store it anew</source>
      <translation>透かしの画像が省かれたか不完全です。理由はログにあり、管理者が保存し直せます</translation>
    </message>
    <message>
      <source>there is no such queue</source>
      <translation>そのようなプリンターはありません</translation>
    </message>
    <message>
      <source>there is no such queue; did you mean %1?</source>
      <translation>そのようなプリンターはありません。%1 のことですか?</translation>
    </message>
    <message>
      <source>true or false</source>
      <translation>はい、またはいいえ</translation>
    </message>
    <message>
      <source>unknown key</source>
      <translation>不明なキー</translation>
    </message>
    <message>
      <source>unknown key; did you mean %1?</source>
      <translation>不明なキーです。%1 ですか?</translation>
    </message>
    <message>
      <source>unknown option; did you mean %1?</source>
      <translation>不明なオプションです。%1 ですか?</translation>
    </message>
    <message>
      <source>watermark %1 was left out: the store has %2; "zarvo watermark list" shows them</source>
      <translation>透かし %1 は省かれました: 保存されているのは %2 個です。"zarvo watermark list" で一覧できます</translation>
    </message>
    <message>
      <source>watermark: a page is a picture, which does not tell how it is read, so its mark stands upright on the paper; when that is wrong, which a preview shows, say WMTurn=90 or WMTurn=270</source>
      <translation>透かし: ページが画像で向きが分からないため、用紙に対して正立で印されます。プレビューで違っていれば WMTurn=90 または WMTurn=270 を指定してください</translation>
    </message>
  </context>
</TS>
