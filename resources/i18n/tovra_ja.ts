<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AccountPage</name>
    <message>
        <source>Your account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect and sync available locations.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation type="unfinished"></translation>
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
        <translation>Czechia</translation>
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
        <translation>North Macedonia</translation>
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
        <translation>Eswatini</translation>
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
        <translation>Türkiye</translation>
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
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every location of the service appears here, with your favourites.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VPN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying the mode...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VPN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill switch, DNS, proxies, language, appearance and updates appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Custom split rules unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your connection status and quick connect appear here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
