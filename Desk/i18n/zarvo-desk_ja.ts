<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
  <context>
    <name>desk</name>
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
      <source>%1 (group)</source>
      <translation>%1（グループ）</translation>
    </message>
    <message>
      <source>%1 (not stored here)</source>
      <translation>%1（ここにはありません）</translation>
    </message>
    <message>
      <source>%1 cannot be read.</source>
      <translation>%1 を読み込めません。</translation>
    </message>
    <message>
      <source>%1 does not take "%2".</source>
      <translation>%1 に「%2」は使えません。</translation>
    </message>
    <message>
      <source>%1 g/m²</source>
      <translation>%1 g/m²</translation>
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
      <source>A text of one's own</source>
      <translation>自分で入力した文</translation>
    </message>
    <message>
      <source>Account</source>
      <translation>アカウント</translation>
    </message>
    <message>
      <source>Account for it</source>
      <translation>課金方法</translation>
    </message>
    <message>
      <source>Accounting</source>
      <translation>課金</translation>
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
      <source>Address book</source>
      <translation>アドレス帳</translation>
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
      <source>Automatic</source>
      <translation>自動</translation>
    </message>
    <message>
      <source>Back cover</source>
      <translation>裏表紙</translation>
    </message>
    <message>
      <source>Back printed</source>
      <translation>裏面に印刷</translation>
    </message>
    <message>
      <source>Banner page</source>
      <translation>バナーページ</translation>
    </message>
    <message>
      <source>Behind the page</source>
      <translation>ページの背面</translation>
    </message>
    <message>
      <source>Black and gray</source>
      <translation>白黒</translation>
    </message>
    <message>
      <source>Blue</source>
      <translation>青</translation>
    </message>
    <message>
      <source>Booklet</source>
      <translation>小冊子</translation>
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
      <source>Buff</source>
      <translation>淡黄</translation>
    </message>
    <message>
      <source>By user</source>
      <translation>ユーザー別</translation>
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
      <source>C fold</source>
      <translation>内三つ折り</translation>
    </message>
    <message>
      <source>Choose a watermark first.</source>
      <translation>先に透かしを選んでください。</translation>
    </message>
    <message>
      <source>Choose first what is other than for the job.</source>
      <translation>先にジョブと異なる設定を選んでください。</translation>
    </message>
    <message>
      <source>Clear</source>
      <translation>透明</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>閉じる</translation>
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
      <source>Company</source>
      <translation>会社</translation>
    </message>
    <message>
      <source>Contrast</source>
      <translation>コントラスト</translation>
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
      <source>Cover</source>
      <translation>表紙</translation>
    </message>
    <message>
      <source>Cover sheet</source>
      <translation>送付状</translation>
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
      <source>Custom %1</source>
      <translation>カスタム %1</translation>
    </message>
    <message>
      <source>Dialled before every number</source>
      <translation>各番号の前に付ける番号</translation>
    </message>
    <message>
      <source>Do this</source>
      <translation>処理</translation>
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
      <source>Each set</source>
      <translation>1 部ごと</translation>
    </message>
    <message>
      <source>Each subset</source>
      <translation>部分ごと</translation>
    </message>
    <message>
      <source>Envelopes</source>
      <translation>封筒</translation>
    </message>
    <message>
      <source>Fax</source>
      <translation>ファックス</translation>
    </message>
    <message>
      <source>Fax recipients</source>
      <translation>ファックスの宛先</translation>
    </message>
    <message>
      <source>Find a setting</source>
      <translation>設定を検索</translation>
    </message>
    <message>
      <source>Fine</source>
      <translation>高画質</translation>
    </message>
    <message>
      <source>Finish</source>
      <translation>仕上げ</translation>
    </message>
    <message>
      <source>Finishing</source>
      <translation>仕上げ</translation>
    </message>
    <message>
      <source>Fold</source>
      <translation>折り</translation>
    </message>
    <message>
      <source>Fold and staple in the fold</source>
      <translation>中とじ（折ってステープル）</translation>
    </message>
    <message>
      <source>Fold in the middle</source>
      <translation>中央で折る</translation>
    </message>
    <message>
      <source>Folder at the printer</source>
      <translation>プリンターのフォルダー</translation>
    </message>
    <message>
      <source>Frame around each page</source>
      <translation>各ページを枠で囲む</translation>
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
      <source>Front cover</source>
      <translation>表表紙</translation>
    </message>
    <message>
      <source>Front printed</source>
      <translation>表面に印刷</translation>
    </message>
    <message>
      <source>General account</source>
      <translation>一般アカウント</translation>
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
      <source>Goldenrod</source>
      <translation>山吹</translation>
    </message>
    <message>
      <source>Gray</source>
      <translation>灰</translation>
    </message>
    <message>
      <source>Green</source>
      <translation>緑</translation>
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
      <source>Half Z fold</source>
      <translation>片 Z 折り</translation>
    </message>
    <message>
      <source>Half Z fold, other side</source>
      <translation>片 Z 折り（反対側）</translation>
    </message>
    <message>
      <source>Half fold</source>
      <translation>二つ折り</translation>
    </message>
    <message>
      <source>Halftone screen</source>
      <translation>網点スクリーン</translation>
    </message>
    <message>
      <source>Hold it at the printer</source>
      <translation>プリンターで保留</translation>
    </message>
    <message>
      <source>Holes</source>
      <translation>穴</translation>
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
      <source>How it is sent</source>
      <translation>送信方法</translation>
    </message>
    <message>
      <source>How many</source>
      <translation>個数</translation>
    </message>
    <message>
      <source>Insert</source>
      <translation>合紙</translation>
    </message>
    <message>
      <source>Insert them after these pages</source>
      <translation>これらのページの後に挿入</translation>
    </message>
    <message>
      <source>Ivory</source>
      <translation>象牙</translation>
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
      <source>Keep the settings under a name</source>
      <translation>設定に名前を付けて登録</translation>
    </message>
    <message>
      <source>Kept as %1. "zarvo ticket list" shows all that are kept.</source>
      <translation>%1 として登録しました。「zarvo ticket list」で一覧を表示できます。</translation>
    </message>
    <message>
      <source>Kind</source>
      <translation>種類</translation>
    </message>
    <message>
      <source>Labels</source>
      <translation>ラベル</translation>
    </message>
    <message>
      <source>Layout</source>
      <translation>レイアウト</translation>
    </message>
    <message>
      <source>Lightness</source>
      <translation>明るさ</translation>
    </message>
    <message>
      <source>Make or change a watermark</source>
      <translation>透かしの作成と変更</translation>
    </message>
    <message>
      <source>Message to the operator</source>
      <translation>オペレーターへの伝言</translation>
    </message>
    <message>
      <source>Mirrored</source>
      <translation>鏡像</translation>
    </message>
    <message>
      <source>Name</source>
      <translation>名前</translation>
    </message>
    <message>
      <source>Name that the printer knows it by</source>
      <translation>プリンターでの用紙名</translation>
    </message>
    <message>
      <source>Name to save it under</source>
      <translation>保存名</translation>
    </message>
    <message>
      <source>Negative</source>
      <translation>ネガ</translation>
    </message>
    <message>
      <source>New</source>
      <translation>新規</translation>
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
      <source>None</source>
      <translation>なし</translation>
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
      <source>Off</source>
      <translation>オフ</translation>
    </message>
    <message>
      <source>On</source>
      <translation>オン</translation>
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
      <source>Orange</source>
      <translation>橙</translation>
    </message>
    <message>
      <source>Over the page</source>
      <translation>ページの前面</translation>
    </message>
    <message>
      <source>Over the page, see-through</source>
      <translation>ページの前面（半透明）</translation>
    </message>
    <message>
      <source>PIN (4 to 10 digits)</source>
      <translation>暗証番号（4～10 桁）</translation>
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
      <source>Page exception</source>
      <translation>ページの例外</translation>
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
      <source>Paper kind</source>
      <translation>用紙の種類</translation>
    </message>
    <message>
      <source>Paper weight</source>
      <translation>用紙の厚さ</translation>
    </message>
    <message>
      <source>Picture for a watermark</source>
      <translation>透かし用の画像</translation>
    </message>
    <message>
      <source>Pink</source>
      <translation>桃</translation>
    </message>
    <message>
      <source>Preprinted</source>
      <translation>印刷済み</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>印刷</translation>
    </message>
    <message>
      <source>Print a confirmation</source>
      <translation>送信結果を印刷</translation>
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
      <source>Printed</source>
      <translation>印刷する</translation>
    </message>
    <message>
      <source>Printer</source>
      <translation>プリンター</translation>
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
      <source>Quality</source>
      <translation>品質</translation>
    </message>
    <message>
      <source>Recipients</source>
      <translation>宛先</translation>
    </message>
    <message>
      <source>Recycled</source>
      <translation>再生紙</translation>
    </message>
    <message>
      <source>Red</source>
      <translation>赤</translation>
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
      <source>Resolution</source>
      <translation>解像度</translation>
    </message>
    <message>
      <source>Saturation</source>
      <translation>彩度</translation>
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
      <source>Secure: wait for a PIN</source>
      <translation>機密: 暗証番号を待つ</translation>
    </message>
    <message>
      <source>Select pages, or type some such as 5-8, 12.</source>
      <translation>ページを選ぶか、5-8, 12 のように入力してください。</translation>
    </message>
    <message>
      <source>Send a cover</source>
      <translation>送付状を付ける</translation>
    </message>
    <message>
      <source>Send it as a fax</source>
      <translation>ファックス送信</translation>
    </message>
    <message>
      <source>Sending "%1" to %2…</source>
      <translation>「%1」を %2 に送信中…</translation>
    </message>
    <message>
      <source>Separators between transparencies</source>
      <translation>OHP 合紙</translation>
    </message>
    <message>
      <source>Sets and subsets</source>
      <translation>部と部分</translation>
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
      <source>Shift stacks</source>
      <translation>用紙の束をずらす</translation>
    </message>
    <message>
      <source>Shift the pages</source>
      <translation>ページの位置をずらす</translation>
    </message>
    <message>
      <source>Size</source>
      <translation>サイズ</translation>
    </message>
    <message>
      <source>Size of the sheets</source>
      <translation>用紙の表示サイズ</translation>
    </message>
    <message>
      <source>Slip sheets between the sets</source>
      <translation>部の間の仕切り紙</translation>
    </message>
    <message>
      <source>Smooth edges</source>
      <translation>輪郭を滑らかに</translation>
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
      <source>Stacker</source>
      <translation>スタッカー</translation>
    </message>
    <message>
      <source>Stacker 1</source>
      <translation>スタッカー 1</translation>
    </message>
    <message>
      <source>Stacker 2</source>
      <translation>スタッカー 2</translation>
    </message>
    <message>
      <source>Standard</source>
      <translation>標準</translation>
    </message>
    <message>
      <source>Staples</source>
      <translation>ステープル</translation>
    </message>
    <message>
      <source>Store a picture…</source>
      <translation>画像を登録…</translation>
    </message>
    <message>
      <source>Store this text</source>
      <translation>この文字を登録</translation>
    </message>
    <message>
      <source>Superfine</source>
      <translation>超高画質</translation>
    </message>
    <message>
      <source>Tabs</source>
      <translation>タブ紙</translation>
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
      <source>The address book cannot be written: %1</source>
      <translation>アドレス帳に書き込めません: %1</translation>
    </message>
    <message>
      <source>The address book is empty</source>
      <translation>アドレス帳は空です</translation>
    </message>
    <message>
      <source>The finisher has no way to do this together with what is chosen already.</source>
      <translation>すでに選んだ仕上げと組み合わせることができません。</translation>
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
      <source>The printer %1 is gone.</source>
      <translation>プリンター %1 がなくなりました。</translation>
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
      <source>Tools</source>
      <translation>ツール</translation>
    </message>
    <message>
      <source>Top tray</source>
      <translation>上トレイ</translation>
    </message>
    <message>
      <source>Transparency</source>
      <translation>OHP フィルム</translation>
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
      <source>Turn the sheets</source>
      <translation>用紙を回転</translation>
    </message>
    <message>
      <source>Two sides</source>
      <translation>両面</translation>
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
      <source>Type pages, or select them among the sheets.</source>
      <translation>ページを入力するか、用紙の中から選んでください。</translation>
    </message>
    <message>
      <source>Type the PIN that you will give at the printer.</source>
      <translation>プリンターで入力する暗証番号を決めてください。</translation>
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
      <source>Use these settings</source>
      <translation>この設定を使う</translation>
    </message>
    <message>
      <source>User</source>
      <translation>ユーザー</translation>
    </message>
    <message>
      <source>User and account</source>
      <translation>ユーザーとアカウント</translation>
    </message>
    <message>
      <source>User, with or without an account</source>
      <translation>ユーザー（アカウントは任意）</translation>
    </message>
    <message>
      <source>Value</source>
      <translation>値</translation>
    </message>
    <message>
      <source>Watermark</source>
      <translation>透かし</translation>
    </message>
    <message>
      <source>Weight</source>
      <translation>厚さ</translation>
    </message>
    <message>
      <source>What I changed</source>
      <translation>変更した設定</translation>
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
      <source>When</source>
      <translation>日時</translation>
    </message>
    <message>
      <source>Where</source>
      <translation>位置</translation>
    </message>
    <message>
      <source>Where the sheets come out</source>
      <translation>排紙先</translation>
    </message>
    <message>
      <source>White</source>
      <translation>白</translation>
    </message>
    <message>
      <source>Who gets the printout</source>
      <translation>受取人</translation>
    </message>
    <message>
      <source>Without a fax number, and so left out: %1</source>
      <translation>ファックス番号がないため除外しました: %1</translation>
    </message>
    <message>
      <source>Yellow</source>
      <translation>黄</translation>
    </message>
    <message>
      <source>Z fold</source>
      <translation>Z 折り</translation>
    </message>
    <message>
      <source>such as 5-8, 12</source>
      <translation>例: 5-8, 12</translation>
    </message>
  </context>
</TS>
