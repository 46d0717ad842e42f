<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hant">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>請輸入帳號和密碼。</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>無法完成帳號操作</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>記住這個帳號</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>登入</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>使用 Tovra 帳號登入，即可連線並同步可用的節點。</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>電子郵件或使用者 ID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>註冊</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>忘記密碼？</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>正在登入...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>續約</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>登出</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>已登入</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>使用者 ID：%1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>方案：%1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>剩餘天數：%1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>同時連線裝置上限：%1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>正在登出...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>正在開啟…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>變更…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>登入桌面時在系統匣中啟動 Tovra。</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>啟動時顯示視窗</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Tovra 啟動時開啟此視窗；否則只會顯示系統匣圖示。</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>與桌面相同</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>淺色、深色或與桌面相同。</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>變更語言</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1（與桌面相同）</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>無法更新登入時啟動設定</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>顯示…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>顯示鍵盤快速鍵</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>此視窗中可用的所有按鍵。</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>節點 %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>其他節點</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>節點數：%1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>尚未測量延遲</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>我的最愛</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>已連線</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>不在您的方案內</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>您的方案不包含此節點。升級後即可使用。</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>此清單可能已過時。</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>已鎖定：需要 %1 方案。升級後即可使用。</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API 網址</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>還原為預設值</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>上次的節點</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>最快的節點</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>自動連線</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Tovra 服務啟動時要自動連線的目標。</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>儲存 API 網址</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>將 API 網址還原為預設值</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Tovra 服務連線帳號及節點伺服器所用的位址。請僅在技術支援人員要求時變更。</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>驗證：%1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>已由 Tovra 服務驗證</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>未驗證：Tovra 服務已儲存此位址，但無法確認是否可用</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>非洲</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>南極洲</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>亞洲</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>歐洲</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>中東</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>北美洲</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>大洋洲</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>南美洲</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Tovra 服務未執行。</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>無權存取 Tovra 服務。請將此使用者加入 tovracli 群組，然後登出再重新登入。</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>無法連線至 Tovra 服務。</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Tovra 服務版本過舊，不支援斷網保護模式。請更新 Tovra。</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>阿富汗</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>奧蘭群島</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>阿爾巴尼亞</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>阿爾及利亞</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>美屬薩摩亞</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>安道爾</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>安哥拉</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>安圭拉</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>安地卡及巴布達</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>阿根廷</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>亞美尼亞</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>阿路巴</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>澳大利亞</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>奧地利</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>亞塞拜然</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>巴哈馬</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>巴林</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>孟加拉</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>巴貝多</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>白俄羅斯</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>比利時</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>貝里斯</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>貝南</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>百慕達</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>不丹</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>玻利維亞</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>波士尼亞及赫塞哥維納</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>波札那</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>巴西</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>汶萊</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>保加利亞</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>布吉納法索</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>蒲隆地</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>柬埔寨</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>喀麥隆</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>加拿大</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>維德角</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>開曼群島</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>中非共和國</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>查德</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>智利</translation>
    </message>
    <message>
        <source>China</source>
        <translation>中國</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>哥倫比亞</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>葛摩</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>剛果</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>剛果民主共和國</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>庫克群島</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>哥斯大黎加</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>象牙海岸</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>克羅埃西亞</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>古巴</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>賽普勒斯</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>捷克</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>丹麥</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>吉布地</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>多米尼克</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>多明尼加共和國</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>厄瓜多</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>埃及</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>薩爾瓦多</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>赤道幾內亞</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>厄利垂亞</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>愛沙尼亞</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>衣索比亞</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>福克蘭群島 (馬維娜斯)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>法羅群島</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>斐濟</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>芬蘭</translation>
    </message>
    <message>
        <source>France</source>
        <translation>法國</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>法屬蓋亞那</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>法屬玻里尼西亞</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>加彭</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>甘比亞</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>喬治亞</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>德國</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>迦納</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>直布羅陀</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>希臘</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>格陵蘭</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>格瑞那達</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>瓜地洛普</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>關島</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>瓜地馬拉</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>根息島</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>幾內亞</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>幾內亞比索</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>蓋亞那</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>海地</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>教廷 (梵蒂岡城市國)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>宏都拉斯</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>香港</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>匈牙利</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>冰島</translation>
    </message>
    <message>
        <source>India</source>
        <translation>印度</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>印度尼西亞</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>伊朗</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>伊拉克</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>愛爾蘭</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>曼島</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>以色列</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>義大利</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>牙買加</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>日本</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>澤西島</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>約旦</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>哈薩克</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>肯亞</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>吉里巴斯</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>北韓</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>南韓</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>科威特</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>吉爾吉斯</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>寮國</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>拉脫維亞</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>黎巴嫩</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>賴索托</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>賴比瑞亞</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>利比亞</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>列支敦斯登</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>立陶宛</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>盧森堡</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>澳門</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>北馬其頓</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>馬達加斯加</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>馬拉威</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>馬來西亞</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>馬爾地夫</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>馬利</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>馬爾他</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>馬紹爾群島</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>馬丁尼克</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>茅利塔尼亞</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>模里西斯</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>馬約特</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>墨西哥</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>密克羅尼西亞聯邦</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>摩爾多瓦</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>摩納哥</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>蒙古</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>蒙特內哥羅</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>蒙塞拉特島</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>摩洛哥</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>莫三比克</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>緬甸</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>納米比亞</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>諾魯</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>尼泊爾</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>荷蘭</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>新喀里多尼亞</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>紐西蘭</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>尼加拉瓜</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>尼日</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>奈及利亞</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>紐埃</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>諾福克島</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>北馬里亞納群島</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>挪威</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>阿曼</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>巴基斯坦</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>帛琉</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>巴勒斯坦</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>巴拿馬</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>巴布亞紐幾內亞</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>巴拉圭</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>祕魯</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>菲律賓</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>波蘭</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>葡萄牙</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>波多黎各</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>卡達</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>留尼旺島</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>羅馬尼亞</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>俄羅斯聯邦</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>盧安達</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>聖赫倫那島、阿森松島及崔斯坦達庫尼亞群島</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>聖克里斯多福及尼維斯</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>聖露西亞</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>聖皮耶及密克隆群島</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>聖文森及格瑞納丁</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>薩摩亞</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>聖馬利諾</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>聖多美及普林西比</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>沙烏地阿拉伯</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>塞內加爾</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>塞爾維亞</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>塞席爾</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>獅子山</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>新加坡</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>斯洛伐克</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>斯洛維尼亞</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>索羅門群島</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>索馬利亞</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>南非</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>南蘇丹</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>西班牙</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>斯里蘭卡</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>蘇丹</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>蘇利南</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>史瓦帝尼</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>瑞典</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>瑞士</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>敘利亞</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>臺灣</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>塔吉克</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>坦尚尼亞</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>泰國</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>東帝汶</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>多哥</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>托克勞</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>東加</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>千里達及托巴哥</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>突尼西亞</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>土耳其</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>土庫曼</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>土克凱可群島</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>吐瓦魯</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>烏干達</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>烏克蘭</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>阿拉伯聯合大公國</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>英國</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>美國</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>烏拉圭</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>烏茲別克</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>萬那杜</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>委內瑞拉</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>越南</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>英屬維京群島</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>美屬維京群島</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>沃里斯及伏塔那群島</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>西撒哈拉</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>葉門</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>尚比亞</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>辛巴威</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: 沒有符合「%1」的節點</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra 正忙於另一個連線或登入；請在完成後再試一次</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: 連線前請先登入 Tovra</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: 您的方案不包含「%1」</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: 要求失敗</translation>
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
        <translation>tovra: 只能指定下列其中一項：%1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>無法啟動 Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra 未能啟動</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>正在執行的 Tovra 是舊版本：它已切換到前景，但沒有執行該要求；請結束後再試一次</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>正在執行的 Tovra 沒有回應</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>設定目錄</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>執行階段目錄</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>狀態檔</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>憑證金鑰</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>歷史記錄</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>控制通訊端</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>PID 檔</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>控制位址</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>診斷</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>修復</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>開啟記錄檔</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>修復連線</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>流量卡住時，重設斷網保護、本機代理和通道。</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Tovra 服務的記錄檔資料夾，供技術支援使用。</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>複製%1路徑</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>服務路徑</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Tovra 服務存放檔案的位置。</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Tovra 服務版本</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>控制協定</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>此應用程式使用第 1 版協定。</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1，不相容</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>清除搜尋</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>清除文字</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>此平台不支援登入時啟動。</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>找不到登入時啟動所需的 Tovra 執行檔。</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>無法準備登入啟動目錄。</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>無法更新 Tovra 的登入啟動項目。</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>無法為 Tovra 的登入啟動項目設定安全權限。</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>無法將 Tovra 從登入啟動項目中移除。</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>這些按鍵在 Tovra 視窗的任何位置都能使用。Tab 鍵可在控制項之間移動。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>強制鎖定</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>無法使用強制鎖定</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>斷網保護需要 VPN 模式</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>斷網保護無法在 Tovra Proxy 模式下執行。請切換至自動（建議）、TovraVPN 或 WireGuard 後再啟用。</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>切換至自動並啟用</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>切換至自動模式並啟用斷網保護</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>選擇模式…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>為斷網保護選擇模式</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy 需要關閉斷網保護</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>斷網保護會封鎖 Tovra Proxy。請先在設定中關閉斷網保護，再切換模式。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>開啟設定</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>開啟設定以關閉斷網保護</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>斷網保護</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>封鎖通道外的流量</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Tovra 已連線或正在連線時，封鎖通道外的流量。</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>永遠</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>只要斷網保護為開啟狀態，即使未連線也會封鎖通道外的流量。</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>強制鎖定</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>由 Tovra 服務設定：通道外的流量會持續遭到封鎖，且無法在此關閉斷網保護。</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>斷網保護何時封鎖流量。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>流量遭到封鎖時，是否仍可存取印表機、共用資料夾等附近的裝置。</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>斷網保護模式：%1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>目前：%1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1。Tovra 服務讓斷網保護保持開啟，無法在此關閉。</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>正在使用 Tovra Proxy：斷網保護需要 VPN 模式。</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>可存取</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>已封鎖</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>使用系統語言</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>使用系統語言（%1）</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>與桌面語言相同</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>選擇語言</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra 會重新啟動以顯示新語言。</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>搜尋語言</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>使用此語言</translation>
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
        <translation>無法使用 Tovra 服務。
服務回應後，節點就會顯示在這裡。</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>正在載入節點...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>服務目前沒有可用的節點。
請稍後按「重新整理」再試一次。</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>尚無我的最愛。
為節點加上星號（或選取後按空白鍵），即可保留在這裡。</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>此分頁中沒有節點。</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>找不到符合「%1」的結果。
請試試國家、城市或代碼，例如「de」。</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>無法載入節點：%1
請按「重新整理」再試一次。</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>從我的最愛中移除</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>加入我的最愛</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>在清單中選取節點即可加入我的最愛</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>將 %1 從我的最愛中移除</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>將 %1 加入我的最愛</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>所有節點</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>按兩下節點即可連線；按兩下國家或城市則會連線至其中最快的節點。</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>搜尋國家、城市、節點或 P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>搜尋節點</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>%1 中的節點都不在您的方案內。</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 不在您的方案內。升級後即可使用。</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>節點動作</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>連線至最快的節點</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>摺疊</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>從我的最愛中移除</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>加入我的最愛</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>所有分頁中的符合項目：%1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>節點數：%1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已連線至 %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>正在測量延遲...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>此清單可能已過時；按「重新整理」即可取得新清單。</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>在收到服務提供的群組之前，暫時依地區分組。</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免費</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>我的最愛</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>節點分頁</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>節點排序</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>預設順序</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>延遲</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>各群組內節點的排列順序</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>重新取得節點清單並測量延遲</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>重新整理（%1 秒）</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>重新整理節點（%1 秒後可再次使用）</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>重新整理節點</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>節點</translation>
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
        <translation>無法完成操作</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>無法變更設定</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>無法變更模式</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>由 Tovra 選擇目前網路環境下效果最好的協定。</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>快速、現代的通道，承載您的所有流量。</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>所有流量都經由 TovraVPN 通道。</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>預設經由通道；所選地區和網站直連。</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>不使用通道：使用本機代理的應用程式透過 Tovra 連上網際網路。</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>使用本機代理，所選地區和網站直連。</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>正在套用…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>斷網保護需要 VPN 模式：請選擇自動、WireGuard 或 TovraVPN 後再開啟。</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>選擇模式</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Tovra 服務回應後就會顯示目前的模式。</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>目前模式：%1。此版本的 Tovra 無法辨識此模式；請從上方選擇一種模式來取代。</translation>
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
        <translation>TovraVPN 分流</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN 全域</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy 分流</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy 全域</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>路由模式</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>選擇流量的路由方式，以及哪些網站略過通道。</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
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
        <translation>帳號</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>系統代理</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>直連</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>仍可存取網路上的印表機、共用資料夾等裝置</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>受保護</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>區域網路流量與其他流量一樣受到保護</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>不變更桌面的代理設定</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>開啟</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>桌面的代理設定指向 Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>鎖定</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>桌面的代理設定指向 Tovra，並維持不變</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Tovra 接管流量時，是否仍可存取區域網路上的裝置。</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>將桌面的代理設定指向 Tovra，或同時禁止其他程式變更這些設定。</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>SOCKS5 監聽位址</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>HTTP 監聽位址</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>套用監聽位址</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>本機 DNS 伺服器</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>例如 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>儲存伺服器</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>清除伺服器</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>重設分流 DNS</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>開啟</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>開啟並鎖定</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>系統代理</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>將桌面的代理設定指向 Tovra；鎖定後其他程式無法變更這些設定。</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>直連</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>受保護</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>直連：在通道之外存取附近的裝置；受保護：所有流量都經由通道。</translation>
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
        <translation>本機代理監聽位址</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>服務接受代理連線的位址，格式為「主機:連接埠」。欄位留空即關閉該監聽。</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>本機 DNS</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>遠端 DNS</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>分流 DNS</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>由哪個 DNS 伺服器解析不經由通道的網域名稱。</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>用於解析本機網域名稱的 DNS 伺服器 IP 位址，以逗號分隔。</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>目前生效：%1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>目前生效：%1，伺服器：%2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>（來自 %1）</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>（來自系統設定）</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>（來自您的清單）</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>關閉通知</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>通知：%1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>自訂分流規則未變更</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>搜尋國家、城市或節點</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>快速連線搜尋</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>最近的搜尋</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>最近使用的節點</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>輸入國家、城市或節點名稱</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>沒有符合「%1」的節點</translation>
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
        <translation>搜尋結果</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好設定</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>變更會在 Tovra 服務確認後生效。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Tovra 服務回應後即可再次變更設定。</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>正在等待 Tovra 服務...</translation>
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
        <translation>請加上連接埠，格式為「主機:連接埠」，例如 127.0.0.1:1080。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>「%1」不是 IPv6 位址。</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>IPv6 位址請寫在方括號內，例如 [::1]:1080。</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>請在連接埠前加上主機，格式為「主機:連接埠」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>「%1」不是主機名稱或 IP 位址。</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>請在冒號後加上連接埠，格式為「主機:連接埠」。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>連接埠必須是 1 到 65535 之間的數字。</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>請輸入 API 網址，或將其還原為預設值。</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>API 網址必須以 http:// 或 https:// 開頭。</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>API 網址必須包含主機，例如 https://api.example.com。</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>請至少輸入一個 DNS 伺服器，或清除清單。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>「%1」不是 IP 位址。</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>選擇 TovraVPN 分流或 Tovra Proxy 分流，即可依地區、GFWList 或自訂規則讓部分流量直連。</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>預設路由</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>直連</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>下方未選擇的流量一律直連</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>選擇…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>選擇地區</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地區</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>自訂分流規則</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>編輯規則…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>編輯自訂分流規則</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>分流路由</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>TovraVPN 分流選項</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Tovra Proxy 分流選項</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>下方未選擇的流量一律經由通道</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>下方未選擇的流量一律經由代理</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>除非地區、GFWList 或規則另有指定，否則流量一律直連。</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>除非地區或規則指定直連，否則流量一律經由通道。</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>除非地區或規則指定直連，否則流量一律經由代理。</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>未選擇地區。</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>直連：%1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>經由通道：%1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>經由代理：%1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → 通道</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → 代理</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>GFWList 中的網站一律經由通道。</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>GFWList 中的網站一律經由代理。</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>您自訂的網域和位址清單。</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>您自訂的網域和位址清單。目前共有 %1 條規則。</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>無法登入</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>無法登出</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>無法載入帳號</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>無法開啟續約頁面</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>正在重新整理節點...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>節點更新已在進行中</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>無法更新我的最愛</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>無法重新整理節點</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>無法重新整理節點群組</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>節點已更新</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>無法連線至此節點</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>無法連線</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>無法中斷連線</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>無法變更語言</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>正在重新啟動 Tovra 以套用介面語言。</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>無法重新啟動 Tovra。請手動重新啟動應用程式。</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>無法切換模式</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>無法更新區域網路設定</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>無法更新系統代理</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>請等待目前的操作完成</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>請選擇 VPN 模式以開啟斷網保護</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>無法更新斷網保護</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>自訂分流規則已更新，但無法重新整理規則</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>無法載入分流規則</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>無法匯入分流規則</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>自訂分流規則已更新（%n 條規則）</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>無法載入設定路徑</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>無法更新 API 網址</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>API 網址已還原為預設值</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>API 網址已驗證並儲存</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>API 網址已儲存，但未驗證</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>無法更新自動連線設定</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>無法更新代理監聽位址</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>代理監聽位址已儲存，將於重新連線後生效</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>代理監聽位址已更新</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>無法更新分流 DNS</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>分流 DNS 已更新</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>修復失敗</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>修復完成</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>正在檢查 Tovra 服務的相容性...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>Tovra 介面程式與服務不相容。請先更新 Tovra 再繼續。</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>無法載入版本資訊</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>無法取得介面程式版本</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>無法檢查更新</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra 已是最新版本</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>連線前正在檢查必要的 Tovra 更新。</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>正在完成最近一次更新檢查，隨後開始下載...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>無法取得更新資訊。請重新檢查更新。</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>無法確認下載是否已開始。正在檢查下載狀態...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>無法開始下載更新</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>無法確認是否已取消。正在重試...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>無法讀取下載進度。正在重試...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>下載在取消前已完成。未開啟安裝程式。</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>更新已下載，但無法開啟安裝程式。</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>此下載屬於另一個更新版本。請重新檢查更新。</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>無法載入斷網保護設定</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>無法載入 API 網址</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>無法載入分流 DNS 設定</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>無法連線至 Tovra 服務</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>無法載入語言清單</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在檢查更新...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 已推出</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>連線前必須安裝必要的 Tovra 更新。</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Tovra 服務無法使用</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Tovra 服務沒有回應</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>連線前必須安裝一個必要的 Tovra 更新</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>另一個連線要求取代了此要求</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>選擇地區</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>搜尋國家/地區</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>國家/地區</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>前往所勾選地區的流量會直連，不經由通道。其他流量一律經由通道。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>前往所勾選地區的流量會直連，不經由代理。其他流量一律經由代理。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>前往所勾選地區的流量會經由通道，其他流量一律直連。</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>前往所勾選地區的流量會經由代理，其他流量一律直連。</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>已勾選：%1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>沒有符合「%1」的國家/地區。</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>規則清單</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>匯入</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>自訂分流規則</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>每行一個網域、IP 位址或 CIDR 範圍，例如 example.org、203.0.113.7 或 10.0.0.0/8。以 # 開頭的行為註解。</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>規則</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>以這些規則取代所選清單</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>直連</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>封鎖</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>一律直連的網站和位址</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>一律經由 Tovra 的網站和位址</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>遭到封鎖的網站和位址</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>正在載入規則…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Tovra 服務未提供任何規則清單。</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>規則尚未載入。</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>規則：%1 · 行數：%2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>未匯入</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>正在匯入…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>未匯入任何內容。請先修正以下各行：</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>第 %1 行：「%2」不是網域、IP 位址或 CIDR 範圍。</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… 錯誤行共 %1 行。</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: 正在連線...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: 正在連線至 %1...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>錯誤：%1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: 正在更新 TovraVPN 分流...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: 正在更新 TovraVPN 地區...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: 正在更新 TovraVPN GFWList...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: 正在更新 TovraVPN 自訂規則...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: 正在更新 Tovra Proxy 分流...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: 正在更新 Tovra Proxy 地區...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: 正在更新 Tovra Proxy GFWList...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>無法完成操作</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>記錄檔目錄</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>缺少%1</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1不存在：%2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>無法開啟%1：%2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>目前：正在載入...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>重新整理節點</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>正在載入節點...</translation>
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
        <translation>模式：TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全域</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分流</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>分流選項</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>預設：通道</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>預設：直連</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>地區</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; 通道</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>自訂分流規則</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>模式：Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>預設：代理</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; 代理</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: 正在啟動...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>服務：正在檢查...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>開啟 Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>中斷連線</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>系統代理</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>鎖定</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>區域網路存取</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>直連</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>受保護</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>斷網保護</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>重新整理狀態</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>開啟記錄檔</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>帳號：正在檢查...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: 無法使用服務</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>無法使用服務</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>帳號：無法使用</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - 無法使用服務</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: 正在切換至自動模式...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: 正在切換至 WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: 正在切換至 TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: 正在切換至 TovraVPN 分流...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: 正在切換至 Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: 正在切換至 Tovra Proxy 分流...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>系統代理：%1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>區域網路：%1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>地區（%1）：%2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>無法重新整理節點</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>無法載入節點</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>無法重新整理節點群組</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>無法載入節點群組</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>正在重新整理節點...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>節點未載入</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>沒有快取的節點</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>沒有節點</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>目前：%1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>重新整理節點（%1 秒）</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>節點：%1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>節點：%1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>目前：%1（可能已過時）</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>不到 1 分鐘</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 小時</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 小時 %2 分鐘</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 天 %2 小時</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: 正在中斷連線...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: 正在登出...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: 正在更新系統代理...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: 正在更新區域網路路由...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: 正在開啟斷網保護...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: 正在關閉斷網保護...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: 連線失敗</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: 中斷連線失敗</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>已登出</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>無法完成帳號操作</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>無法變更模式</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>模式已更新</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>系統代理已設為 %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>已更新</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>斷網保護已開啟</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>斷網保護已關閉</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>無法變更斷網保護</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>已連線</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在連線</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>正在中斷連線</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>執行中</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>服務：%1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>服務：%1（%2）</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>帳號：已快取</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>帳號：需要登入</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>帳號：%1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>帳號：已登入</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>斷網保護：%1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>開啟</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>鎖定</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · 已鎖定：需要 %2 方案</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>無法讀取更新的下載狀態。</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>下載已取消。</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>無法下載更新。</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>下載完成。正在開啟安裝程式...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>無法使用下載連結。</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>無法開啟更新的下載連結。</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>下載連結已在瀏覽器中開啟。Tovra 不會自動執行安裝程式。</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Tovra 更新</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>必須先更新 Tovra 才能連線。請下載安裝程式，或結束 Tovra。</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>下載進度</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>略過此版本</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>稍後再說</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>結束 Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>不更新並結束 Tovra</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>開啟下載連結</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>開啟 Tovra 更新的下載連結</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>有必須安裝的更新</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Tovra 有新的更新可用</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>最新版本</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>目前版本：%1
可用版本：%2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>無法取得版本說明。</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>正在下載：%1 / %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>正在下載更新...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>正在準備下載...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>正在驗證下載的檔案...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>正在取消下載...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>在背景下載</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>在背景下載最新的安裝程式，不會中斷目前的工作階段。</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>下載更新期間隱藏此視窗</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>取消下載更新</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>取消下載</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>正在開啟安裝程式...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>重新下載</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>重新下載更新</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>下載更新</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>下載並安裝 Tovra 更新</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>正在重試下載...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra Linux 版</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>此應用程式的版本。</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>向 Tovra 服務查詢是否有新版本。</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1（組建 %2）</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>斷網保護</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>連線</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>登入</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>中斷連線</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>正在中斷連線…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>無法使用服務</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>正在等待 Tovra 服務回應。</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>未登入</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>登入 Tovra 帳號後即可連線。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>節點</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>上次的節點</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>您的流量正經由 Tovra 通道傳輸。</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在連線…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>正在建立通道。</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>正在連線至 %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>正在關閉通道。</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>在您連線之前，斷網保護會封鎖流量。</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>您的流量未受保護。</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已連線至 %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>連線失敗：%1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>清除</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>您連線過的節點會顯示在這裡。</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>最近使用的節點</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>清除最近使用的節點</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>連線至 %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>已連線 %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>模式：%1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>無法開啟連結</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>無法取得記錄檔目錄</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>記錄檔目錄不存在：%1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>無法開啟記錄檔目錄：%1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>無法完成帳號操作</translation>
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
        <translation>顯示 VPN 頁面</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>顯示「節點」頁面</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>顯示「模式」頁面</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>顯示「設定」頁面</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>顯示「帳號」頁面</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>搜尋：VPN 頁面的快速連線欄位、「節點」頁面的清單</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>重新整理節點</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>關閉視窗；Tovra 仍留在系統匣中</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>結束 Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>關閉清單、選單或對話框</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>顯示這些鍵盤快速鍵</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1（%2）</translation>
    </message>
</context>
</TS>
