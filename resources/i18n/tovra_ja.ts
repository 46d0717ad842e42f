<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>アカウントとパスワードを入力してください。</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>アカウントの操作を完了できませんでした</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>このアカウントを記憶する</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Tovra アカウントを使って接続し、利用できるロケーションを同期します。</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>メールアドレスまたはユーザー ID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>新規登録</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>パスワードをお忘れですか？</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>サインインしています...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>契約を更新</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>サインアウト</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>サインイン済み</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>ユーザー ID: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>プラン: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>残り日数: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>同時接続できるデバイス数: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>サインアウトしています...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>開いています…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>変更…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>デスクトップにログインしたときに Tovra をトレイで起動します。</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>起動時にウィンドウを表示</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Tovra の起動時にこのウィンドウを開きます。オフにするとトレイアイコンだけが表示されます。</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>ライト、ダーク、またはデスクトップの設定に合わせます。</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>言語を変更</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1 (デスクトップの設定に従う)</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>ログイン時の起動を変更できませんでした</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>表示…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>キーボードショートカットを表示</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>このウィンドウで使えるすべてのキー。</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>ロケーション %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>その他のロケーション</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>プレミアム</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>ロケーション数: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>遅延は未測定</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>プラン対象外</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>このロケーションはご利用のプランに含まれていません。使用するにはアップグレードしてください。</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>この一覧は最新ではない可能性があります。</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>ロック中: %1 プランが必要です。使用するにはアップグレードしてください。</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API URL</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>前回のロケーション</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>最速のロケーション</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>自動接続</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Tovra サービスの起動時に接続する先です。</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>API URL を保存</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>API URL を既定値に戻す</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Tovra サービスがアカウントサーバーとロケーションサーバーに接続するためのアドレスです。サポートから指示があった場合にのみ変更してください。</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>検証: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Tovra サービスで検証済み</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>未検証: Tovra サービスはこのアドレスを保存しましたが、確認できませんでした</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>アフリカ</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>南極</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>アジア</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>ヨーロッパ</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>中東</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>北アメリカ</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>オセアニア</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>南アメリカ</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Tovra サービスが起動していません。</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Tovra サービスへのアクセスが拒否されました。このユーザーを tovracli グループに追加してから、デスクトップからログアウトして再度ログインしてください。</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>Tovra サービスに接続できませんでした。</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Tovra サービスが古いため、キルスイッチのモードを使用できません。Tovra をアップデートしてください。</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>アフガニスタン</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>オーランド諸島</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>アルバニア</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>アルジェリア</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>米領サモア</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>アンドラ</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>アンゴラ</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>アングイラ</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>アンティグア・バーブーダ</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>アルゼンチン</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>アルメニア</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>アルーバ</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>オーストラリア連邦</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>オーストリア</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>アゼルバイジャン</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>バハマ</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>バーレーン</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>バングラデシュ</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>バルバドス</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>ベラルーシ</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>ベルギー</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>ベリーズ</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>ベナン</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>バーミューダ</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>ブータン</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>ボリビア</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>ボスニア・ヘルツェゴビナ</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>ボツワナ</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>ブラジル</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>ブルネイ・ダルサラーム国</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>ブルガリア</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>ブルキナファソ</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>ブルンジ</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>カンボジア</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>カメルーン</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>カナダ</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>カーボヴェルデ</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>ケイマン諸島</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>中央アフリカ共和国</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>チャド</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>チリ</translation>
    </message>
    <message>
        <source>China</source>
        <translation>中国</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>コロンビア</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>コモロ</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>コンゴ</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>コンゴ民主共和国</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>クック諸島</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>コスタリカ</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>コートジボワール</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>クロアチア</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>キューバ</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>キプロス</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>チェコ</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>デンマーク</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>ジブチ</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>ドミニカ</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>ドミニカ共和国</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>エクアドル</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>エジプト</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>エルサルバドル</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>赤道ギニア</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>エリトリア国</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>エストニア</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>エチオピア</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>フォークランド諸島 (マルビナス)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>フェロー諸島</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>フィジー</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>フィンランド</translation>
    </message>
    <message>
        <source>France</source>
        <translation>フランス</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>仏領ギアナ</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>仏領ポリネシア</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>ガボン</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>ガンビア</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>グルジア</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>ドイツ</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>ガーナ</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>ジブラルタル</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>ギリシャ</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>グリーンランド</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>グレナダ</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>グアドループ</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>グアム</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>グアテマラ</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>ガーンジー</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>ギニア</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>ギニアビサウ</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>ガイアナ</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>ハイチ</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>聖庁 (バチカン市国)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>ホンジュラス</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>香港</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>ハンガリー</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>アイスランド</translation>
    </message>
    <message>
        <source>India</source>
        <translation>インド</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>インドネシア</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>イラン・イスラム共和国</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>イラク</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>アイルランド</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>マン島</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>イスラエル</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>イタリア</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>ジャマイカ</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>日本</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>ジャージー</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>ヨルダン</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>カザフスタン</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>ケニア</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>キリバス</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>朝鮮民主主義人民共和国</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>大韓民国 (韓国)</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>クウェート</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>キルギスタン</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>ラオス人民民主共和国</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>ラトビア</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>レバノン</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>レソト</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>リベリア</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>リビア</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>リヒテンシュタイン</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>リトアニア</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>ルクセンブルク</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>マカオ</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>北マケドニア</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>マダガスカル</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>マラウイ</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>マレーシア</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>モルディブ</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>マリ</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>マルタ</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>マーシャル諸島</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>マルティニーク</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>モーリタニア</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>モーリシャス</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>マヨット</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>メキシコ</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>ミクロネシア連邦</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>モルドバ</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>モナコ</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>モンゴル国</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>モンテネグロ</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>モントセラト</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>モロッコ</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>モザンビーク</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>ミャンマー</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>ナミビア</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>ナウル</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>ネパール</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>オランダ</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>ニューカレドニア</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>ニュージーランド</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>ニカラグア</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>ニジェール</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>ナイジェリア</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>ニウエ</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>ノーフォーク島</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>北マリアナ諸島</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>ノルウェー</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>オマーン</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>パキスタン</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>パラオ</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>パレスチナ</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>パナマ</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>パプアニューギニア</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>パラグアイ</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>ペルー</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>フィリピン</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>ポーランド</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>ポルトガル</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>プエルトリコ</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>カタール</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>レユニオン</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>ルーマニア</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>ロシア連邦</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>ルワンダ</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>セントヘレナ、アセンション及びトリスタン・ダ・クーニャ</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>セントクリストファー・ネーヴィス</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>セントルシア</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>サンピエール及びミクロン</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>セントビンセント及びグレナディーン諸島</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>サモア</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>サンマリノ</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>サントメ・プリンシペ</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>サウジアラビア</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>セネガル</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>セルビア</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>セーシェル</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>シエラレオネ</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>シンガポール</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>スロバキア</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>スロベニア</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>ソロモン諸島</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>ソマリア</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>南アフリカ</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>南スーダン</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>スペイン</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>スリランカ</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>スーダン</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>スリナム</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>エスワティニ</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>スウェーデン</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>スイス</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>シリア・アラブ共和国</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>台湾</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>タジキスタン</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>タンザニア</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>タイ</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>東ティモール</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>トーゴ</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>トケラウ</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>トンガ</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>トリニダード・トバゴ</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>チュニジア</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>トルコ</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>トルクメニスタン</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>タークス及びカイコス諸島</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>ツバル</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>ウガンダ</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>ウクライナ</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>アラブ首長国連邦</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>英国</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>米国</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>ウルグアイ</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>ウズベキスタン</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>バヌアツ</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>ベネズエラ</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>ベトナム</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>英領ヴァージン諸島</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>米領ヴァージン諸島</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>ワリー及びフテュナ</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>西サハラ</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>イエメン</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>ザンビア</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>ジンバブエ</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: 「%1」に一致するロケーションはありません</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra は別の接続またはサインインを処理中です。完了してからもう一度お試しください</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: 接続する前に Tovra にサインインしてください</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: ご利用のプランに「%1」は含まれていません</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: 要求は失敗しました</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: 次のうち 1 つだけを指定してください: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>Tovra を起動できませんでした</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra が起動しませんでした</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>実行中の Tovra は古いバージョンです。前面に表示されましたが要求は実行されませんでした。終了してからもう一度お試しください</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>実行中の Tovra が応答しませんでした</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>ランタイムディレクトリ</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>ログ</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>状態ファイル</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>認証情報キー</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>制御ソケット</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>PID ファイル</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>制御アドレス</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>修復</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>ログを開く</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>接続を修復</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>通信が止まってしまったときに、キルスイッチ、ローカルプロキシ、トンネルをリセットします。</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Tovra サービスのログフォルダーです (サポート用)。</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>%1 のパスをコピー</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>サービスのパス</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Tovra サービスがファイルを保存している場所です。</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Tovra サービスのバージョン</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>制御プロトコル</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>このアプリはバージョン 1 に対応しています。</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1 (互換性なし)</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>テキストをクリア</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>このプラットフォームではログイン時の起動に対応していません。</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>ログイン時の起動に使う Tovra の実行ファイルが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>ログイン時の起動用ディレクトリを準備できませんでした。</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Tovra のログイン時の起動を変更できませんでした。</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Tovra のログイン時の起動設定を保護できませんでした。</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Tovra をログイン時の起動から削除できませんでした。</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>これらのキーは Tovra ウィンドウのどこでも使えます。Tab でコントロール間を移動します。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>ロックダウン</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>ロックダウンは利用不可</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>キルスイッチには VPN モードが必要です</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>Tovra Proxy ではキルスイッチを使用できません。有効にするには、自動 (推奨)、TovraVPN、または WireGuard に切り替えてください。</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>自動に切り替えて有効化</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>自動に切り替えてキルスイッチを有効化</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>モードを選択…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>キルスイッチで使うモードを選択</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy を使うにはキルスイッチをオフにしてください</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>キルスイッチが Tovra Proxy をブロックしています。先に設定でキルスイッチをオフにしてから、モードを切り替えてください。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>設定を開いてキルスイッチをオフにする</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>キルスイッチ</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>トンネル外の通信をブロック</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Tovra が接続済みまたは接続中のとき、トンネル外の通信をブロックします。</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>常時</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>キルスイッチがオンの間は、切断中でもトンネル外の通信をブロックします。</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>ロックダウン</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Tovra サービスによる設定: トンネル外の通信は常にブロックされ、ここからキルスイッチをオフにすることはできません。</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>キルスイッチが通信をブロックするタイミングです。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>通信のブロック中も、プリンターや共有フォルダーなど近くのデバイスにアクセスできるようにするかどうかを設定します。</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>キルスイッチのモード: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>現在: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1。Tovra サービスがキルスイッチをオンに固定しているため、ここからオフにすることはできません。</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy を使用中です: キルスイッチには VPN モードが必要です。</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>アクセス可</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>ブロック</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>システムの言語を使用</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>システムの言語を使用 (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>デスクトップの言語に合わせます</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>言語を選択</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>新しい言語で表示するために Tovra を再起動します。</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>言語を検索</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>この言語を使用</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>Tovra サービスを利用できません。
サービスが応答するとすぐにロケーションがここに表示されます。</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>ロケーションを読み込んでいます...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>現在、サービスが提供できるロケーションはありません。
しばらくしてから [更新] をお試しください。</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>お気に入りはまだありません。
ロケーションに星を付ける (または選択して Space キーを押す) と、ここに表示されます。</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>このタブにはロケーションがありません。</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>「%1」に一致するものはありません。
国名、都市名、または「de」のようなコードで検索してください。</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>ロケーションを読み込めませんでした: %1
[更新] を押してもう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>お気に入りから削除</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>お気に入りに追加</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>星を付けるには、リストでロケーションを選択してください</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>%1 をお気に入りから削除</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>%1 をお気に入りに追加</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>すべてのロケーション</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>ロケーションをダブルクリックすると接続します。国や都市をダブルクリックすると、その中で最速のロケーションに接続します。</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>国、都市、ロケーション、P2P を検索</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>ロケーションを検索</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>%1 のロケーションはどれもご利用のプランに含まれていません。</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 はご利用のプランに含まれていません。使用するにはアップグレードしてください。</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>ロケーションの操作</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>最速のロケーションに接続</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>お気に入りから削除</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>お気に入りに追加</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>すべてのタブでの一致: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>ロケーション: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 に接続済み</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>遅延を測定しています...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>この一覧は最新ではない可能性があります。[更新] で新しい一覧を取得できます。</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>サービスからグループ情報が届くまで、地域ごとにまとめて表示しています。</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>無料</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>プレミアム</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>ロケーションのタブ</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>ロケーションの並べ替え</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>サービスの順序</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>各グループ内でのロケーションの並び順</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>ロケーションの一覧を再取得して遅延を測定します</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>更新 (%1 秒)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>ロケーションを更新 (%1 秒後に再実行できます)</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>ロケーションを更新</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>ロケーション</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>操作を完了できませんでした</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>設定を変更できませんでした</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>モードを変更できませんでした</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>この環境で最適なプロトコルを Tovra が選択します。</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>すべての通信に使える、高速で最新のトンネルです。</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>すべての通信が TovraVPN のトンネルを通ります。</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>通常はトンネルを通り、選択した地域とサイトは直接接続します。</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>トンネルは使いません。ローカルプロキシを使うアプリが Tovra 経由でインターネットに接続します。</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>ローカルプロキシを使い、選択した地域とサイトは直接接続します。</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>適用しています…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>キルスイッチには VPN モードが必要です。オンにするには、自動、WireGuard、または TovraVPN を選択してください。</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>モードを選択</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Tovra サービスが応答すると、現在のモードが表示されます。</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>現在のモード: %1。このバージョンの Tovra はこのモードに対応していません。上のモードからいずれかを選択して置き換えてください。</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN スプリット</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN グローバル</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy スプリット</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy グローバル</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>ルーティングモード</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>通信の経路と、トンネルを経由しないサイトを選択します。</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>ロケーション</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>システムプロキシ</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>直接</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>プリンターや共有フォルダーなど、ネットワーク上のデバイスにアクセスできます</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>保護</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>ローカルネットワークの通信も他の通信と同様に保護されます</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>デスクトップのプロキシ設定は変更しません</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>オン</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>デスクトップのプロキシ設定を Tovra に向けます</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>ロック</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>デスクトップのプロキシ設定を Tovra に向け、その状態を維持します</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Tovra が通信をルーティングしている間も、ローカルネットワーク上のデバイスにアクセスできるようにするかどうかを設定します。</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>デスクトップのプロキシ設定を Tovra に向けます。ほかのプログラムによる変更を防ぐこともできます。</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>SOCKS5 リスナー</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>HTTP リスナー</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>リスナーを適用</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>ローカル DNS サーバー</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>例: 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>サーバーを保存</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>サーバーをクリア</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>スプリット DNS をリセット</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>オン</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>オン (ロック)</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>システムプロキシ</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>デスクトップのプロキシ設定を Tovra に向けます。ロックすると、ほかのプログラムによる変更を防ぎます。</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>直接</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>保護</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>[直接] はトンネルを通さずに近くのデバイスにアクセスします。[保護] はすべての通信をトンネル経由で送ります。</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>ローカルプロキシのリスナー</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Tovra サービスがプロキシ接続を受け付けるアドレスです (host:port 形式)。リスナーを閉じるには、そのフィールドを空にしてください。</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>ローカル DNS</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>リモート DNS</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>スプリット DNS</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>トンネルを経由しない名前の解決に使うリゾルバーです。</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>ローカル名の解決に使うリゾルバーの IP アドレスです (カンマ区切り)。</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>適用中: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>適用中: %1、サーバー %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(%1 から)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>（システム設定から）</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>（ご自身のリストから）</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>通知を閉じる</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>通知: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>カスタムスプリットルールは変更されていません</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>国、都市、ロケーションを検索</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>クイック接続の検索</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>最近の検索</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>最近のロケーション</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>国、都市、ロケーションの名前を入力</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>「%1」に一致するロケーションはありません</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>検索結果</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>変更は Tovra サービスが確認した時点で反映されます。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Tovra サービスが応答すると、再び設定を変更できるようになります。</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>Tovra サービスを待っています...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>ポートを追加してください: host:port (例: 127.0.0.1:1080)。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>「%1」は IPv6 アドレスではありません。</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>IPv6 アドレスは角かっこで囲んでください: [::1]:1080</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>ポートの前にホストを追加してください: host:port</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>「%1」はホスト名でも IP アドレスでもありません。</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>コロンの後にポートを追加してください: host:port</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>ポートには 1～65535 の数値を指定してください。</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>API URL を入力するか、既定値に戻してください。</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>API URL は http:// または https:// で始まる必要があります。</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>API URL にはホストが必要です (例: https://api.example.com)。</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>DNS サーバーを 1 つ以上入力するか、一覧をクリアしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>「%1」は IP アドレスではありません。</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>一部の通信を直接接続にするには、TovraVPN スプリットまたは Tovra Proxy スプリットを選択してください。地域、GFWList、または独自のルールで振り分けられます。</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>既定の経路</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>直接</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>以下で選択したもの以外はすべて直接接続します</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>地域を選択</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地域</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>カスタムスプリットルール</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>ルールを編集…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>カスタムスプリットルールを編集</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>スプリットルーティング</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>TovraVPN スプリットのオプション</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Tovra Proxy スプリットのオプション</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>トンネル</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>以下で選択したもの以外はすべてトンネルを通ります</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>以下で選択したもの以外はすべてプロキシを通ります</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>地域、GFWList、またはルールで指定されない限り、通信は直接接続します。</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>地域またはルールで直接接続が指定されない限り、通信はトンネルを通ります。</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>地域またはルールで直接接続が指定されない限り、通信はプロキシを通ります。</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>地域が選択されていません。</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>直接接続: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>トンネル経由: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>プロキシ経由: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → トンネル</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → プロキシ</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>GFWList に載っているサイトは常にトンネルを通ります。</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>GFWList に載っているサイトは常にプロキシを通ります。</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>独自のドメインとアドレスの一覧です。</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>独自のドメインとアドレスの一覧です。ルール数: %1。</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>サインインできませんでした</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>サインアウトできませんでした</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>アカウントを読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>契約更新ページを開けませんでした</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>ロケーションを更新しています...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>ロケーションの更新はすでに実行中です</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>お気に入りを変更できませんでした</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>ロケーションを更新できませんでした</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>ロケーショングループを更新できませんでした</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>ロケーションを更新しました</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>このロケーションに接続できませんでした</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>接続できませんでした</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>切断できませんでした</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>言語を変更できませんでした</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>表示言語を適用するために Tovra を再起動しています。</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>Tovra を再起動できませんでした。手動でアプリを再起動してください。</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>モードを切り替えられませんでした</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>ローカルネットワークの設定を変更できませんでした</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>システムプロキシの設定を変更できませんでした</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>現在の操作が完了するまでお待ちください</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>キルスイッチをオンにするには VPN モードを選択してください</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>キルスイッチの設定を変更できませんでした</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>カスタムスプリットルールを更新しましたが、ルールを再読み込みできませんでした</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>スプリットルールを読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>スプリットルールをインポートできませんでした</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>カスタムスプリットルールを更新しました (%n 件)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>設定ファイルのパスを読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>API URL を変更できませんでした</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>API URL を既定値に戻しました</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>API URL を検証して保存しました</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>API URL を保存しましたが、検証されていません</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>自動接続の設定を変更できませんでした</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>プロキシの待ち受けアドレスを変更できませんでした</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>プロキシの待ち受けアドレスを保存しました (再接続時に適用)</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>プロキシの待ち受けアドレスを変更しました</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>スプリット DNS を変更できませんでした</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>スプリット DNS を変更しました</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>修復に失敗しました</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>修復が完了しました</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Tovra サービスとの互換性を確認しています...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>Tovra のアプリとサービスに互換性がありません。続行する前に Tovra をアップデートしてください。</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>バージョンを読み込めませんでした</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>アプリのバージョンを取得できません</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra は最新です</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>接続する前に、必須の Tovra アップデートを確認しています。</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>ダウンロードを開始する前に、最新のアップデート確認を完了しています...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>アップデート情報を取得できません。もう一度アップデートを確認してください。</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>キャンセルしています...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>ダウンロードの開始を確認できませんでした。状態を確認しています...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>アップデートのダウンロードを開始できませんでした</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>キャンセルを確認できませんでした。再試行しています...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>ダウンロードの進行状況を読み取れませんでした。再試行しています...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>キャンセルする前にダウンロードが完了しました。インストーラーは開いていません。</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>アップデートはダウンロードされましたが、インストーラーを開けませんでした。</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>このダウンロードは別のリリースのアップデートです。もう一度アップデートを確認してください。</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>キルスイッチの設定を読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>API URL を読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>スプリット DNS を読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>Tovra サービスに接続できませんでした</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>言語を読み込めませんでした</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>アップデートを確認しています...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 が利用可能です</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>接続する前に、必須の Tovra アップデートをインストールする必要があります。</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Tovra サービスを利用できません</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Tovra サービスが応答しませんでした</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>接続する前に、必須の Tovra アップデートをインストールする必要があります</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>別の接続要求がこの要求に置き換わりました</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>地域を選択</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>国を検索</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>国</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>チェックした地域への通信は、トンネルを通らずに直接接続します。それ以外はすべてトンネルを通ります。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>チェックした地域への通信は、プロキシを通らずに直接接続します。それ以外はすべてプロキシを通ります。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>チェックした地域への通信はトンネルを通ります。それ以外はすべて直接接続します。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>チェックした地域への通信はプロキシを通ります。それ以外はすべて直接接続します。</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>選択済み: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>「%1」に一致する国はありません。</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>ルールの一覧</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>カスタムスプリットルール</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>1 行に 1 つずつ、ドメイン、IP アドレス、または CIDR 範囲を入力します (例: example.org、203.0.113.7、10.0.0.0/8)。# で始まる行はコメントです。</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>選択した一覧をこれらのルールで置き換えます</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>直接</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>ブロック</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>常に直接接続するサイトとアドレス</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>常に Tovra を経由するサイトとアドレス</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>ブロックするサイトとアドレス</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>ルールを読み込んでいます…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Tovra サービスからルールの一覧が提供されていません。</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>ルールはまだ読み込まれていません。</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>ルール: %1 · 行: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>未インポート</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>インポート中…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>何もインポートされませんでした。先に次の行を修正してください:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>%1 行目: 「%2」はドメイン、IP アドレス、CIDR 範囲のいずれでもありません。</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… 不正な行の合計: %1。</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: 接続しています...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: %1 に接続しています...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>エラー: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: TovraVPN スプリットを変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: TovraVPN の地域を変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: TovraVPN の GFWList 設定を変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: TovraVPN のカスタムルールを変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: Tovra Proxy スプリットを変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: Tovra Proxy の地域を変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: Tovra Proxy の GFWList 設定を変更しています...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>操作を完了できませんでした</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>ログディレクトリ</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 がありません</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 が存在しません: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>%1 を開けませんでした: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>現在: 読み込んでいます...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>ロケーションを更新</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>ロケーションを読み込んでいます...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>モード: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>グローバル</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>スプリット</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>スプリットのオプション</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>既定: トンネル</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>既定: 直接</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地域</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; トンネル</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>カスタムスプリットルール</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>モード: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>既定: プロキシ</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; プロキシ</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: 起動しています...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>サービス: 確認しています...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Tovra を開く...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>ロケーション</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>システムプロキシ</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>オン</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>LAN アクセス</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>直接</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>保護</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>キルスイッチ</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>状態を更新</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>ログを開く</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>アカウント: 確認しています...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>サインアウト</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: サービスを利用できません</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>サービスを利用できません</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>アカウント: 利用できません</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - サービスを利用できません</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: 自動に切り替えています...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: WireGuard に切り替えています...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: TovraVPN に切り替えています...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: TovraVPN スプリットに切り替えています...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: Tovra Proxy に切り替えています...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: Tovra Proxy スプリットに切り替えています...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>システムプロキシ: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>ローカルネットワーク: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>トンネル</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>地域 (%1): %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>ロケーションを更新できませんでした</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>ロケーションを読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>ロケーショングループを更新できませんでした</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>ロケーショングループを読み込めませんでした</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>ロケーションを更新しています...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>ロケーションが読み込まれていません</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>キャッシュされたロケーションはありません</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>ロケーションがありません</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>現在: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>ロケーションを更新 (%1 秒)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>ロケーション: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>ロケーション: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>現在: %1 (古い情報)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>1 分未満</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 日 %2 時間</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: 切断しています...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: サインアウトしています...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: システムプロキシを変更しています...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: ローカルネットワークのルーティングを変更しています...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: キルスイッチをオンにしています...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: キルスイッチをオフにしています...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: 接続に失敗しました</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: 切断に失敗しました</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>サインアウトしました</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>アカウントの操作を完了できませんでした</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>モードを変更できませんでした</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>モードを変更しました</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>システムプロキシを %1 に設定しました</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>変更しました</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>キルスイッチをオンにしました</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>キルスイッチをオフにしました</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>キルスイッチを変更できませんでした</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>切断済み</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>切断中</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>サービス: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>サービス: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>アカウント: キャッシュ済み</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>アカウント: サインインが必要です</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>アカウント: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>アカウント: サインイン済み</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>キルスイッチ: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>オフ</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>オン</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>ロック</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · ロック中: %2 プランが必要です</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>アップデートのダウンロード状況を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>ダウンロードをキャンセルしました。</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>アップデートをダウンロードできませんでした。</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>ダウンロードが完了しました。インストーラーを開いています...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>ダウンロードリンクを利用できません。</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>アップデートのダウンロードリンクを開けませんでした。</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>ダウンロードリンクをブラウザーで開きました。Tovra はインストーラーを自動的に実行しません。</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Tovra のアップデート</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>接続するには Tovra をアップデートする必要があります。インストーラーをダウンロードするか、Tovra を終了してください。</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>ダウンロードの進行状況</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>このアップデートを表示しない</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>後で</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Tovra を終了</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>アップデートせずに Tovra を終了</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>ダウンロードリンクを開く</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Tovra アップデートのダウンロードリンクを開きます</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>必須のアップデートがあります</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Tovra の新しいアップデートがあります</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>最新版</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>現在のバージョン: %1
利用可能なバージョン: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>リリースノートを表示できません。</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>%2 中 %1 をダウンロードしています</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>アップデートをダウンロードしています...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>ダウンロードを準備しています...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>ダウンロードを検証しています...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>ダウンロードをキャンセルしています...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>バックグラウンドでダウンロード</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>現在のセッションを中断せずに、最新のインストーラーをダウンロードします。</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>アップデートのダウンロード中はこのウィンドウを隠します</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>キャンセルしています...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>アップデートのダウンロードをキャンセルします</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>ダウンロードをキャンセル</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>インストーラーを開いています...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>ダウンロードを再試行</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>アップデートのダウンロードを再試行します</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>アップデートをダウンロード</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Tovra のアップデートをダウンロードしてインストールします</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>ダウンロードを再試行しています...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Linux 版 Tovra</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>このアプリのバージョンです。</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>新しいバージョンがあるかどうかを Tovra サービスに問い合わせます。</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (ビルド %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>キルスイッチ</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>接続</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>切断</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>切断しています…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>サービスを利用できません</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>Tovra サービスの応答を待っています。</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>サインアウト済み</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>接続するには Tovra アカウントにサインインしてください。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>ロケーション</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>前回のロケーション</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>通信は Tovra のトンネルを通っています。</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続しています…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>トンネルを準備しています。</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>%1 に接続しています</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>トンネルを閉じています。</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>切断済み</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>接続するまで、キルスイッチが通信をブロックします。</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>通信は保護されていません。</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 に接続しました</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>接続に失敗しました: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>接続したロケーションがここに表示されます。</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>最近のロケーション</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>最近のロケーションをクリア</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>%1 に接続</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>接続時間: %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>モード: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>リンクを開けませんでした</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>ログディレクトリを利用できません</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>ログディレクトリが存在しません: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>ログディレクトリを開けませんでした: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>アカウントの操作を完了できませんでした</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>VPN ページを表示</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>「ロケーション」ページを表示</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>「モード」ページを表示</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>「設定」ページを表示</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>「アカウント」ページを表示</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>検索: VPN ページのクイック接続欄、「ロケーション」ページの一覧</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>ロケーションを更新</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>ウィンドウを閉じる (Tovra はトレイに残ります)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Tovra を終了</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>一覧、メニュー、ダイアログを閉じる</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>このキーボードショートカット一覧を表示</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1（%2）</translation>
    </message>
</context>
</TS>
